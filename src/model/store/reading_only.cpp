#include "model/store/reading_only.h"

#include <QByteArray>
#include <QRegularExpression>
#include <QString>

#include <sqlite3.h>

#include <cstring>
#include <memory>
#include <new>

namespace iosphoto {

namespace {

constexpr const char *columnsOfATable = "table_xinfo";

struct Finalize
{
    void operator()(sqlite3_stmt *statement) const { sqlite3_finalize(statement); }
};
struct Free
{
    void operator()(char *text) const { sqlite3_free(text); }
};

/// Hands each row of a query to `take`.
/// @return an SQLite code
template <typename Take>
int forEachRow(sqlite3 *connection, const char *query, Take take)
{
    sqlite3_stmt *prepared = nullptr;
    int result = sqlite3_prepare_v2(connection, query, -1, &prepared, nullptr);
    const std::unique_ptr<sqlite3_stmt, Finalize> statement(prepared);
    if (result != SQLITE_OK)
        return result;
    while ((result = sqlite3_step(prepared)) == SQLITE_ROW)
        take(prepared);
    return result == SQLITE_DONE ? SQLITE_OK : result;
}

/// @param computes  [out] whether the table has a column that is computed
int look(sqlite3 *connection, const std::string &table, bool &computes)
{
    constexpr int hidden = 6; // column: 0 for one that is written and read as it is
    const std::unique_ptr<char, Free> query(
        sqlite3_mprintf("pragma main.%s(%Q)", columnsOfATable, table.c_str()));
    if (query == nullptr)
        return SQLITE_NOMEM;
    return forEachRow(connection, query.get(), [&](sqlite3_stmt *row) {
        computes = computes || sqlite3_column_int(row, hidden) != 0;
    });
}

/// The tables that a statement names, in upper case.
std::set<QByteArray> tablesNamedIn(const char *statement)
{
    static const QRegularExpression table(
        QStringLiteral("\\b(?:(?:from|join)\\s+(\\w+)|(\\w+)\\.)"),
        QRegularExpression::CaseInsensitiveOption);
    std::set<QByteArray> names;
    auto found = table.globalMatch(QString::fromUtf8(statement));
    while (found.hasNext()) {
        const QRegularExpressionMatch match = found.next();
        names.insert(match.captured(match.lastCapturedIndex()).toUpper().toUtf8());
    }
    return names;
}

} // namespace

void ReadingOnly::apply(sqlite3 *connection)
{
    connection_ = connection;
    sqlite3_limit(connection, SQLITE_LIMIT_ATTACHED, 0);
    sqlite3_drop_modules(connection, nullptr); // without them a virtual table cannot be read
    sqlite3_set_authorizer(connection, judge, this);
}

int ReadingOnly::findComputed(std::string &table) const
{
    table.clear();
    for (const std::string &name : tables_) {
        bool computes = false;
        if (const int result = look(connection_, name, computes); result != SQLITE_OK)
            return result;
        if (computes) {
            table = name;
            break;
        }
    }
    return SQLITE_OK;
}

int ReadingOnly::findImpostor(const char *statement, std::string &impostor) const
{
    const std::set<QByteArray> tables = tablesNamedIn(statement);
    return forEachRow(connection_,
                      "select name from sqlite_master where type = 'view' or "
                      "(type = 'table' and sql not like 'create table%')",
                      [&](sqlite3_stmt *row) {
                          const QByteArray name(
                              reinterpret_cast<const char *>(sqlite3_column_text(row, 0)));
                          if (tables.count(name.toUpper()) != 0)
                              impostor = name.toStdString();
                      });
}

int ReadingOnly::judge(void *self, int action, const char *object, const char * /*detail*/,
                       const char * /*schema*/, const char * /*context*/) noexcept
{
    switch (action) {
    case SQLITE_READ:
        static_cast<ReadingOnly *>(self)->note(object);
        return SQLITE_OK;
    case SQLITE_SELECT:
    case SQLITE_FUNCTION:
    case SQLITE_RECURSIVE:
        return SQLITE_OK;
    case SQLITE_PRAGMA:
        return std::strcmp(object, columnsOfATable) == 0 ? SQLITE_OK : SQLITE_DENY;
    default:
        return SQLITE_DENY;
    }
}

void ReadingOnly::note(const char *table) noexcept
{
    try {
        tables_.emplace(table);
    } catch (const std::bad_alloc &) {
        isOutOfMemory_ = true;
    }
}

} // namespace iosphoto
