#ifndef IOSPHOTO_TOOL_SQLITE_ERROR_H
#define IOSPHOTO_TOOL_SQLITE_ERROR_H

#include <sqlite3.h>

#include <string>

namespace iosphoto::tool {

/// What a result code of SQLite means.
std::string sqliteError(int code);

/// What went wrong last on a connection.
std::string sqliteError(sqlite3 *connection);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_SQLITE_ERROR_H
