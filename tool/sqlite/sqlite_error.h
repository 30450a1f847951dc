#ifndef IOSPHOTO_TOOL_SQLITE_ERROR_H
#define IOSPHOTO_TOOL_SQLITE_ERROR_H

#include <sqlite3.h>

#include <string>

namespace iosphoto::tool {

/// What a result code of SQLite means, an extended one best.
std::string sqliteError(int code);

/// What went wrong last on a connection.
std::string sqliteError(sqlite3 *connection);

/// Whether an error is one of the database itself, and not of the machine that reads it.
bool isOfDatabase(int code);

/// What people can do about an error.
/// @param copyAgain  how to get the database anew, for an error of the database itself
std::string remedyFor(int code, const std::string &copyAgain);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_SQLITE_ERROR_H
