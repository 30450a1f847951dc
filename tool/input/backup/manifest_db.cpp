#include "input/backup/manifest_db.h"

#include "input/backup/stored_names.h"
#include "input/source_problem.h"

namespace iosphoto::tool {

namespace {

constexpr const char *lookupStatement =
    "select fileID from Files where domain = ? and relativePath = ? "
    "and flags is not 2 and flags is not 4 limit 1"; // neither folders nor links

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

ManifestDb::ManifestDb(const std::filesystem::path &copy, std::string shownName)
    : database_(copy.string(), std::move(shownName), IfDamaged::CopyBackupAgain)
{
    if (!database_.isDatabase())
        throw SourceError(SourceProblem::IndexIsNoDatabase, {database_.shownName()});
    if (!database_.areRealTables({"Files"}, ""))
        throw SourceError(SourceProblem::IndexHasOtherTables, {database_.shownName()});
    if (!database_.prepares(lookupStatement) || !database_.prepares(listStatement))
        throw database_.unreadable();
}

std::optional<std::string> ManifestDb::locate(const std::string &mediaPath) const
{
    std::optional<std::string> name;
    database_.forEachRow(lookupStatement, [&](const QueryRow &row) { name = row.text(0); },
                         {mediaDomain, pathInDomain(mediaPath)});
    if (!name)
        return std::nullopt;
    if (!isStoredName(*name))
        throw SourceError(SourceProblem::IndexNamesNoStoredFile, {database_.shownName(), *name});
    return inItsFolder(*name);
}

std::vector<std::string> ManifestDb::storedFiles() const
{
    std::vector<std::string> files;
    database_.forEachRow(listStatement,
                         [&](const QueryRow &row) {
                             if (const std::string name = row.text(0); isStoredName(name))
                                 files.push_back(inItsFolder(name));
                         },
                         {mediaDomain});
    return files;
}

} // namespace iosphoto::tool
