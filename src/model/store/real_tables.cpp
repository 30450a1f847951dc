#include "model/store/real_tables.h"

#include "model/store/sqlite_handles.h"

namespace iosphoto {

namespace {

/// Hands each row of a query to `take`, until that says that it is enough.
/// @return an SQLite code
template <typename Take>
int forEachRow(sqlite3 *connection, const SqliteText &query, Take take)
{
    if (query == nullptr)
        return SQLITE_NOMEM;
    sqlite3_stmt *prepared = nullptr;
    int result = sqlite3_prepare_v2(connection, query.get(), -1, &prepared, nullptr);
    const SqliteStatement statement(prepared);
    if (result != SQLITE_OK)
        return result;
    while ((result = sqlite3_step(prepared)) == SQLITE_ROW)
        if ((result = take(prepared)) != SQLITE_OK)
            return result;
    return result == SQLITE_DONE ? SQLITE_OK : result;
}

} // namespace

int hasComputedColumn(sqlite3 *connection, const std::string &schema, const std::string &table,
                      bool &isSo)
{
    constexpr int hidden = 6; // column: 0 for one that is written and read as it is
    isSo = false;
    const SqliteText query(
        sqlite3_mprintf("pragma \"%w\".table_xinfo(%Q)", schema.c_str(), table.c_str()));
    return forEachRow(connection, query, [&](sqlite3_stmt *row) {
        isSo = isSo || sqlite3_column_int(row, hidden) != 0;
        return SQLITE_OK;
    });
}

int findImpostor(sqlite3 *connection, const std::string &schema,
                 const std::function<bool(const std::string &)> &isMeant, std::string &impostor)
{
    impostor.clear();
    // SQLite makes sure that name and type are those of the definition, but takes a virtual table
    // for a table.
    const SqliteText query(
        sqlite3_mprintf("select name, type = 'table' and ifnull(sql, '') like 'create table%%' "
                        "from \"%w\".sqlite_master where type in ('table', 'view')",
                        schema.c_str()));
    return forEachRow(connection, query, [&](sqlite3_stmt *row) {
        const auto *const text = reinterpret_cast<const char *>(sqlite3_column_text(row, 0));
        const std::string name(text != nullptr ? text : ""); // lack of memory ends the next step
        if (!isMeant(name))
            return SQLITE_OK;
        bool isComputed = false;
        const bool isTable = sqlite3_column_int(row, 1) != 0;
        const int result =
            isTable ? hasComputedColumn(connection, schema, name, isComputed) : SQLITE_OK;
        if (!isTable || isComputed)
            impostor = name;
        return result;
    });
}

} // namespace iosphoto
