#include "support/query.h"

#include <sqlite3.h>

#include <memory>
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
    const std::unique_ptr<sqlite3, decltype(&sqlite3_close)> connection(opened, sqlite3_close);
    sqlite3_stmt *prepared = nullptr;
    if (result != SQLITE_OK ||
        sqlite3_prepare_v2(opened, sql.c_str(), -1, &prepared, nullptr) != SQLITE_OK)
        throw std::runtime_error(sql + ": " + sqlite3_errmsg(opened));
    const std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)> statement(prepared,
                                                                               sqlite3_finalize);
    std::vector<std::vector<std::string>> rows;
    while (sqlite3_step(prepared) == SQLITE_ROW) {
        auto &row = rows.emplace_back();
        for (int column = 0; column < sqlite3_column_count(prepared); ++column)
            row.push_back(text(prepared, column));
    }
    return rows;
}

} // namespace iosphoto::test
