#include "support/query.h"

#include "support/database.h"

#include <stdexcept>

namespace iosphoto::test {

namespace {

std::string text(sqlite3_stmt *statement, int column)
{
    const void *const bytes = sqlite3_column_blob(statement, column);
    if (sqlite3_column_type(statement, column) == SQLITE_NULL)
        return "null";
    const auto size = static_cast<std::size_t>(sqlite3_column_bytes(statement, column));
    return {static_cast<const char *>(bytes), size};
}

} // namespace

std::vector<std::vector<std::string>> query(const std::filesystem::path &file,
                                            const std::string &sql)
{
    sqlite3 *opened = nullptr;
    const int result = sqlite3_open_v2(file.c_str(), &opened, SQLITE_OPEN_READONLY, nullptr);
    const SqliteConnection connection(opened);
    if (result != SQLITE_OK)
        throw std::runtime_error(file.string() + ": " + sqlite3_errmsg(opened));
    const SqliteStatement statement = prepare(connection, sql);
    std::vector<std::vector<std::string>> rows;
    while (sqlite3_step(statement.get()) == SQLITE_ROW) {
        auto &row = rows.emplace_back();
        for (int column = 0; column < sqlite3_column_count(statement.get()); ++column)
            row.push_back(text(statement.get(), column));
    }
    return rows;
}

} // namespace iosphoto::test
