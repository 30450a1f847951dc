#include "source/copy_database.h"

#include "language/said.h"
#include "language/sqlite_error.h"

#include <filesystem>

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

std::string QueryRow::text(int column) const
{
    const auto *bytes = static_cast<const char *>(sqlite3_column_blob(statement_, column));
    const auto size = static_cast<std::size_t>(sqlite3_column_bytes(statement_, column));
    return bytes != nullptr ? std::string(bytes, size) : std::string();
}

CopyDatabase::CopyDatabase(const std::string &file, std::string shownName)
    : file_(file), shownName_(std::move(shownName))
{
    sqlite3 *connection = nullptr;
    const int opened =
        sqlite3_open_v2(uriOf(file).c_str(), &connection,
                        SQLITE_OPEN_READWRITE | SQLITE_OPEN_URI | SQLITE_OPEN_NOMUTEX, nullptr);
    connection_.reset(connection);
    if (opened != SQLITE_OK)
        throw unreadable();
    sqlite3_db_config(connection, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
}

void CopyDatabase::check() const
{
    // Reads the first page, and so meets a wrong header, an encrypted file and a bad journal.
    const int result = sqlite3_exec(connection_.get(), "select name from sqlite_master", nullptr,
                                    nullptr, nullptr);
    std::error_code ignored;
    if (std::filesystem::file_size(file_, ignored) == 0 && !ignored &&
        !std::filesystem::exists(file_ + "-wal", ignored))
        throw Failure(
            WrongKindOfFile,
            said("'{0}' is empty; copy it from the device or the backup again", shownName_));
    if (result == SQLITE_NOTADB)
        throw Failure(WrongKindOfFile,
                      said("'{0}' is not a SQLite database, or it is encrypted; name the "
                           "Photos.sqlite of a phone or of an unencrypted backup",
                           shownName_));
    if (result != SQLITE_OK)
        throw unreadable();
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

void CopyDatabase::forEachRow(const std::string &query,
                              const std::function<void(const QueryRow &)> &take) const
{
    const auto statement = prepare(query);
    if (statement == nullptr)
        return;
    int result = SQLITE_ROW;
    while ((result = sqlite3_step(statement.get())) == SQLITE_ROW)
        take(QueryRow(statement.get()));
    if (result != SQLITE_DONE)
        throw unreadable();
}

bool CopyDatabase::attachWithoutLog(const std::string &name) const
{
    const auto statement = prepare("attach ?1 as " + name);
    const std::string uri = uriOf(file_) + "?immutable=1";
    return statement != nullptr &&
           sqlite3_bind_text(statement.get(), 1, uri.c_str(), -1, SQLITE_TRANSIENT) == SQLITE_OK &&
           sqlite3_step(statement.get()) == SQLITE_DONE;
}

std::string CopyDatabase::assetTable() const
{
    for (const char *table : {"ZASSET", "ZGENERICASSET"})
        if (hasTable(table))
            return table;
    return {};
}

std::unique_ptr<sqlite3_stmt, CopyDatabase::Close>
CopyDatabase::prepare(const std::string &text) const
{
    sqlite3_stmt *statement = nullptr;
    sqlite3_prepare_v2(connection_.get(), text.c_str(), -1, &statement, nullptr);
    return std::unique_ptr<sqlite3_stmt, Close>(statement);
}

Failure CopyDatabase::unreadable() const
{
    return {CannotAccess,
            said("cannot read '{0}': {1}; copy it from the device or the backup again", shownName_,
                 sqliteError(connection_.get()))};
}

} // namespace iosphoto::tool
