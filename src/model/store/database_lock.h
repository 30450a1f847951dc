#ifndef IOSPHOTO_DATABASE_LOCK_H
#define IOSPHOTO_DATABASE_LOCK_H

#include <QMutex>

namespace iosphoto {

/// Held by every visit to a database, whichever it is, from before the open to after the close.
/// Visits do not nest.
extern QMutex g_Lock;

} // namespace iosphoto

#endif // IOSPHOTO_DATABASE_LOCK_H
