#ifndef IOSPHOTO_BENCH_SQLITE_HANDLES_H
#define IOSPHOTO_BENCH_SQLITE_HANDLES_H

#include <sqlite3.h>

#include <memory>

namespace iosphoto::bench {

struct CloseHandle
{
    void operator()(sqlite3 *connection) const { sqlite3_close(connection); }
    void operator()(sqlite3_stmt *statement) const { sqlite3_finalize(statement); }
};

/// Declared before its statements, so that it is closed after them.
using Connection = std::unique_ptr<sqlite3, CloseHandle>;
using PreparedStatement = std::unique_ptr<sqlite3_stmt, CloseHandle>;

} // namespace iosphoto::bench

#endif // IOSPHOTO_BENCH_SQLITE_HANDLES_H
