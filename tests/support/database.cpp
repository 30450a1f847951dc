#include "support/database.h"

#include <stdexcept>

namespace iosphoto::test {

namespace {

void check(const SqliteConnection &connection, int result, const std::string &what)
{
    if (result != SQLITE_OK)
        throw std::runtime_error(what + ": " + sqlite3_errmsg(connection.get()));
}

} // namespace

SqliteConnection openDatabase(const std::string &path)
{
    sqlite3 *opened = nullptr;
    const int result = sqlite3_open(path.c_str(), &opened);
    SqliteConnection connection(opened);
    check(connection, result, path);
    return connection;
}

SqliteStatement prepare(const SqliteConnection &connection, const std::string &sql)
{
    sqlite3_stmt *prepared = nullptr;
    check(connection, sqlite3_prepare_v2(connection.get(), sql.c_str(), -1, &prepared, nullptr),
          sql);
    return SqliteStatement(prepared);
}

void execute(const SqliteConnection &connection, const std::string &sql)
{
    check(connection, sqlite3_exec(connection.get(), sql.c_str(), nullptr, nullptr, nullptr), sql);
}

} // namespace iosphoto::test
