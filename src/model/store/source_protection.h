#ifndef IOSPHOTO_SOURCE_PROTECTION_H
#define IOSPHOTO_SOURCE_PROTECTION_H

struct sqlite3;

namespace iosphoto {

/// Sees to it that a fresh connection changes neither its database nor the write-ahead log beside
/// it. A plain close would move the log into the database and delete it.
/// @return false when reading alone would change a file, so that nothing may be read.
bool protectSource(sqlite3 *connection);

} // namespace iosphoto

#endif // IOSPHOTO_SOURCE_PROTECTION_H
