#include "language/sqlite_error.h"

#include "language/said.h"

#include <array>

namespace iosphoto::tool {

namespace {

/// Those that people meet; the others stay English.
[[maybe_unused]] constexpr std::array common = {
    translatable("attempt to write a readonly database"),
    translatable("database disk image is malformed"),
    translatable("database is locked"),
    translatable("database or disk is full"),
    translatable("disk I/O error"),
    translatable("file is not a database"),
    translatable("unable to open database file"),
};

} // namespace

std::string sqliteError(int code)
{
    return translated(sqlite3_errstr(code));
}

std::string sqliteError(sqlite3 *connection)
{
    return translated(sqlite3_errmsg(connection));
}

} // namespace iosphoto::tool
