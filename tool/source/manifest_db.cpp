#include "source/manifest_db.h"

#include "failure.h"
#include "language/said.h"
#include "language/sqlite_error.h"
#include "source/stored_name.h"

#include <sqlite3.h>

#include <algorithm>

namespace iosphoto::tool {

namespace {

constexpr const char *lookupStatement =
    "select fileID from Files where domain = ? and relativePath = ? "
    "and flags is not 2 and flags is not 4"; // neither folders nor links

/// The log's index is made anew by whoever opens the database.
constexpr const char *listStatement =
    "select fileID from Files where domain = ? and relativePath like 'Media/%' "
    "and relativePath not like '%-shm' and flags is not 2 and flags is not 4";

void bindText(sqlite3_stmt *statement, int number, const std::string &text)
{
    sqlite3_bind_text(statement, number, text.data(), static_cast<int>(text.size()),
                      SQLITE_TRANSIENT);
}

/// Anything else could lead out of the backup.
bool isStoredName(const std::string &name)
{
    constexpr std::size_t digits = 40;
    return name.size() == digits && name.find_first_not_of("0123456789abcdef") == std::string::npos;
}

} // namespace

void ManifestDb::Close::operator()(sqlite3 *connection) const
{
    sqlite3_close(connection);
}

void ManifestDb::Close::operator()(sqlite3_stmt *statement) const
{
    sqlite3_finalize(statement);
}

ManifestDb::ManifestDb(const std::filesystem::path &copy, std::string shownName)
    : shownName_(std::move(shownName))
{
    sqlite3 *connection = nullptr;
    const int opened = sqlite3_open(copy.c_str(), &connection);
    connection_.reset(connection);
    sqlite3_stmt *lookup = nullptr;
    if (opened != SQLITE_OK ||
        sqlite3_prepare_v2(connection, lookupStatement, -1, &lookup, nullptr) != SQLITE_OK)
        fail();
    lookup_.reset(lookup);
}

std::optional<std::string> ManifestDb::locate(const std::string &mediaPath) const
{
    sqlite3_reset(lookup_.get());
    bindText(lookup_.get(), 1, mediaDomain);
    bindText(lookup_.get(), 2, pathInDomain(mediaPath));
    const int result = sqlite3_step(lookup_.get());
    if (result == SQLITE_DONE)
        return std::nullopt;
    if (result != SQLITE_ROW)
        fail();
    const auto *const text = reinterpret_cast<const char *>(sqlite3_column_text(lookup_.get(), 0));
    const std::string name = text != nullptr ? text : "";
    if (!isStoredName(name))
        throw Failure(CannotAccess, said("'{0}' names a stored file '{1}', which no backup has; "
                                         "copy the whole backup again",
                                         shownName_, name));
    return inItsFolder(name);
}

std::vector<std::string> ManifestDb::storedFiles() const
{
    sqlite3_stmt *list = nullptr;
    sqlite3_prepare_v2(connection_.get(), listStatement, -1, &list, nullptr);
    const std::unique_ptr<sqlite3_stmt, Close> owned(list);
    bindText(list, 1, mediaDomain);
    std::vector<std::string> files;
    int result = SQLITE_ROW;
    while ((result = sqlite3_step(list)) == SQLITE_ROW) {
        const auto *const name = reinterpret_cast<const char *>(sqlite3_column_text(list, 0));
        if (name != nullptr && isStoredName(name))
            files.push_back(inItsFolder(name));
    }
    if (result != SQLITE_DONE)
        fail();
    return files;
}

void ManifestDb::fail() const
{
    if (sqlite3_errcode(connection_.get()) == SQLITE_NOTADB)
        throw Failure(CannotAccess, said("cannot read '{0}': it is not a SQLite database, or it is "
                                         "encrypted; copy the whole backup again",
                                         shownName_));
    throw Failure(CannotAccess, said("cannot read '{0}': {1}; copy the whole backup again",
                                     shownName_, sqliteError(connection_.get())));
}

} // namespace iosphoto::tool
