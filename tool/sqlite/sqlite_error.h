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

/// How to get a database anew that is damaged.
enum class IfDamaged { CopyLibraryAgain, CopyBackupAgain };

std::string adviceFor(IfDamaged remedy);

/// What people can do about an error.
/// @param remedy  for an error of the database itself
std::string remedyFor(int code, IfDamaged remedy);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_SQLITE_ERROR_H
