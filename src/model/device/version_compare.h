#ifndef IOSPHOTO_VERSION_COMPARE_H
#define IOSPHOTO_VERSION_COMPARE_H

#include <QStringView>

namespace iosphoto {

/// cmpProductVersion() for texts that need not be QStrings.
int compareModels(QStringView a, QStringView b) noexcept;

} // namespace iosphoto

#endif // IOSPHOTO_VERSION_COMPARE_H
