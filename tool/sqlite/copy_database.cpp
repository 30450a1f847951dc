#include "sqlite/copy_database.h"

#include "model/store/real_tables.h"
#include "model/store/untrusted_database.h"
#include "sqlite/sqlite_error.h"
#include "text/translate.h"

#include <fmt/format.h>

#include <algorithm>

namespace iosphoto::tool {

namespace {

/// The URI of a file, in which '?', '#' and '%' would have a meaning.
std::string uriOf(const std::string &file)
{
    std::string uri = "file:";
    for (const char character : file) {
        const bool isSpecial = character == '?' || character == '#' || character == '%';
        uri += isSpecial ? fmt::format("%{:02x}", character) : std::string(1, character);
    }
    return uri;
}

} // namespace

bool QueryRow::isNull(int column) const
{
    return sqlite3_column_type(statement_, column) == SQLITE_NULL;
}

bool QueryRow::isBlob(int column) const
{
    return sqlite3_column_type(statement_, column) == SQLITE_BLOB;
}

bool QueryRow::isNumber(int column) const
{
    const int type = sqlite3_column_type(statement_, column);
    return type == SQLITE_INTEGER || type == SQLITE_FLOAT;
}

std::string QueryRow::text(int column) const
{
    const auto *bytes = static_cast<const char *>(sqlite3_column_blob(statement_, column));
    const auto size = static_cast<std::size_t>(sqlite3_column_bytes(statement_, column));
    return bytes != nullptr ? std::string(bytes, size) : std::string();
}

CopyDatabase::CopyDatabase(const std::string &file, std::string shownName, IfDamaged remedy)
    : file_(file), shownName_(std::move(shownName)), remedy_(remedy)
{
    sqlite3 *connection = nullptr;
    const int opened =
        sqlite3_open_v2(uriOf(file).c_str(), &connection,
                        SQLITE_OPEN_READWRITE | SQLITE_OPEN_URI | SQLITE_OPEN_NOMUTEX, nullptr);
    connection_.reset(connection);
    if (opened != SQLITE_OK || distrust(connection) != SQLITE_OK)
        throw unreadable();
    sqlite3_db_config(connection, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    workLimit_.apply(connection);
}

bool CopyDatabase::isDatabase() const
{
    // Reads the first page, and so meets a wrong header, an encrypted file and a bad journal.
    const int result = sqlite3_exec(connection_.get(), "select name from sqlite_master", nullptr,
                                    nullptr, nullptr);
    if (result != SQLITE_OK && result != SQLITE_NOTADB)
        throw unreadable();
    return result == SQLITE_OK;
}

bool CopyDatabase::areRealTables(const std::vector<std::string> &tables,
                                 const std::string &like) const
{
    const auto isMeant = [&](const std::string &name) {
        constexpr unsigned escape = '^';
        return sqlite3_strlike(like.c_str(), name.c_str(), escape) == 0 ||
               std::any_of(tables.begin(), tables.end(), [&](const std::string &table) {
                   return sqlite3_stricmp(table.c_str(), name.c_str()) == 0;
               });
    };
    std::string impostor;
    if (findImpostor(connection_.get(), "main", isMeant, impostor) != SQLITE_OK)
        throw unreadable();
    return impostor.empty();
}

bool CopyDatabase::hasTable(const std::string &table) const
{
    return sqlite3_table_column_metadata(connection_.get(), nullptr, table.c_str(), nullptr,
                                         nullptr, nullptr, nullptr, nullptr, nullptr) == SQLITE_OK;
}

bool CopyDatabase::hasColumn(const std::string &table, const std::string &column) const
{
    return sqlite3_table_column_metadata(connection_.get(), nullptr, table.c_str(), column.c_str(),
                                         nullptr, nullptr, nullptr, nullptr, nullptr) == SQLITE_OK;
}

bool CopyDatabase::prepares(const std::string &statement) const
{
    return prepare(statement) != nullptr;
}

std::string CopyDatabase::misfitOf(const std::string &statement) const
{
    return prepares(statement) ? "" : sqlite3_errmsg(connection_.get());
}

void CopyDatabase::execute(const std::string &statement) const
{
    if (sqlite3_exec(connection_.get(), statement.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
        throw unreadable();
}

void CopyDatabase::forEachRow(const std::string &query,
                              const std::function<void(const QueryRow &)> &take,
                              const std::vector<std::string> &values) const
{
    const auto statement = prepare(query);
    if (statement == nullptr)
        return;
    for (std::size_t i = 0; i < values.size(); ++i)
        if (sqlite3_bind_text64(statement.get(), static_cast<int>(i + 1), values[i].data(),
                                values[i].size(), SQLITE_TRANSIENT, SQLITE_UTF8) != SQLITE_OK)
            throw unreadable();
    int result = SQLITE_ROW;
    while ((result = sqlite3_step(statement.get())) == SQLITE_ROW)
        take(QueryRow(statement.get()));
    if (result != SQLITE_DONE)
        throw unreadable();
}

SqliteStatement CopyDatabase::prepare(const std::string &text) const
{
    sqlite3_stmt *statement = nullptr;
    const int result = sqlite3_prepare_v2(connection_.get(), text.c_str(), -1, &statement, nullptr);
    SqliteStatement owned(statement);
    constexpr int primaryCode = 0xff;
    if (result != SQLITE_OK && (result & primaryCode) != SQLITE_ERROR)
        throw unreadable();
    return owned;
}

bool CopyDatabase::isDamaged() const
{
    const int code = sqlite3_errcode(connection_.get());
    return code == SQLITE_CORRUPT || code == SQLITE_NOTADB;
}

Failure CopyDatabase::unreadable() const
{
    return {CannotAccess,
            translate("cannot read '{0}': {1}; {2}", shownName_, sqliteError(connection_.get()),
                      remedyFor(sqlite3_extended_errcode(connection_.get()), remedy_))};
}

} // namespace iosphoto::tool
