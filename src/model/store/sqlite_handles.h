/// Owners of what SQLite hands out, which give it back when they go.
#ifndef IOSPHOTO_SQLITE_HANDLES_H
#define IOSPHOTO_SQLITE_HANDLES_H

#include <sqlite3.h>

#include <memory>

namespace iosphoto {

struct CloseSqlite
{
    void operator()(sqlite3 *connection) const { sqlite3_close(connection); }
    void operator()(sqlite3_stmt *statement) const { sqlite3_finalize(statement); }
    void operator()(char *text) const { sqlite3_free(text); }
};

/// Declared before its statements, so that it is closed after them.
using SqliteConnection = std::unique_ptr<sqlite3, CloseSqlite>;
using SqliteStatement = std::unique_ptr<sqlite3_stmt, CloseSqlite>;
/// What sqlite3_mprintf() and sqlite3_exec() allocate.
using SqliteText = std::unique_ptr<char, CloseSqlite>;

} // namespace iosphoto

#endif // IOSPHOTO_SQLITE_HANDLES_H
