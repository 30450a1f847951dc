#ifndef IOSPHOTO_UNTRUSTED_DATABASE_H
#define IOSPHOTO_UNTRUSTED_DATABASE_H

struct sqlite3;

namespace iosphoto {

/// Prepares a connection for a database that may hold anything and for a disk that may be full:
/// views and triggers do nothing, the schema may call no function that does more than compute, no
/// value may fill the memory, and what is sorted stays in memory.
/// @return an SQLite code; SQLITE_NOMEM when memory ran out
int distrust(sqlite3 *connection);

} // namespace iosphoto

#endif // IOSPHOTO_UNTRUSTED_DATABASE_H
