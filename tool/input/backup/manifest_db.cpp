#include "input/backup/manifest_db.h"

#include "input/backup/stored_names.h"
#include "input/source_problem.h"
#include "sqlite/database_size.h"

namespace iosphoto::tool {

namespace {

constexpr const char *lookupStatement =
    "select fileID from Files where domain = ? and relativePath = ? "
    "and flags is not 2 and flags is not 4 limit 1"; // neither folders nor links

constexpr const char *recordStatement =
    "select file from Files where domain = ? and relativePath = ? "
    "and flags is not 2 and flags is not 4 limit 1";

/// The log's index is made anew by whoever opens the database.
constexpr const char *listStatement =
    "select fileID from Files where domain = ? and relativePath like 'Media/%' "
    "and relativePath not like '%-shm' and flags is not 2 and flags is not 4";

/// Anything else could lead out of the backup.
bool isStoredName(const std::string &name)
{
    constexpr std::size_t digits = 40;
    return name.size() == digits && name.find_first_not_of("0123456789abcdef") == std::string::npos;
}

} // namespace

ManifestDb::ManifestDb(const std::filesystem::path &copy, std::string shownName,
                       std::optional<EncryptedIndex> encryption)
    : database_(copy.string(), std::move(shownName), IfDamaged::CopyBackupAgain),
      encryption_(std::move(encryption))
{
    std::error_code ignored;
    if (std::filesystem::file_size(copy, ignored) == 0) // which SQLite takes for a database
        throw SourceError(SourceProblem::IndexIsCutShort, {database_.shownName()});
    sayingDamage([&] { requireIndex(); });
    if (cutOf(copy)) // once a journal is rolled back
        throw SourceError(SourceProblem::IndexIsDamaged, {database_.shownName()});
}

void ManifestDb::requireIndex() const
{
    if (!database_.isDatabase())
        throw SourceError(SourceProblem::IndexIsNoDatabase, {database_.shownName()});
    if (!database_.areRealTables({"Files"}, ""))
        throw SourceError(SourceProblem::IndexHasOtherTables, {database_.shownName()});
    if (!database_.prepares(lookupStatement) || !database_.prepares(listStatement))
        throw database_.unreadable();
}

void ManifestDb::sayingDamage(const std::function<void()> &read) const
{
    try {
        read();
    } catch (const Failure &) {
        if (database_.isDamaged())
            throw SourceError(SourceProblem::IndexIsDamaged, {database_.shownName()});
        throw;
    }
}

std::optional<std::string> ManifestDb::lookUp(const char *statement,
                                              const std::string &mediaPath) const
{
    std::optional<std::string> value;
    sayingDamage([&] {
        database_.forEachRow(statement, [&](const QueryRow &row) { value = row.text(0); },
                             {mediaDomain, pathInDomain(mediaPath)});
    });
    return value;
}

std::optional<std::string> ManifestDb::locate(const std::string &mediaPath) const
{
    const auto name = lookUp(lookupStatement, mediaPath);
    if (!name)
        return std::nullopt;
    if (!isStoredName(*name))
        throw SourceError(SourceProblem::IndexNamesNoStoredFile, {database_.shownName(), *name});
    return inItsFolder(*name);
}

std::optional<FileRecord> ManifestDb::record(const std::string &mediaPath) const
{
    const auto stored = lookUp(recordStatement, mediaPath);
    if (!stored)
        return std::nullopt;
    return readFileRecord(encryption_ ? encryption_->record(*stored) : *stored);
}

std::vector<std::string> ManifestDb::storedFiles() const
{
    std::vector<std::string> files;
    const auto add = [&](const QueryRow &row) {
        if (const std::string name = row.text(0); isStoredName(name))
            files.push_back(inItsFolder(name));
    };
    sayingDamage([&] { database_.forEachRow(listStatement, add, {mediaDomain}); });
    return files;
}

} // namespace iosphoto::tool
