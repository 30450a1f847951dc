#include "catalogue/library_list.h"

#include "schema/asset_tables.h"
#include "schema/opened_copy.h"
#include "sqlite/copy_database.h"

#include <algorithm>
#include <utility>

namespace iosphoto::tool {

namespace {

/// Whether the database and its log are copied in a moment.
bool isSmall(const Source &source)
{
    constexpr std::uint64_t most = std::uint64_t{256} * 1024 * 1024;
    std::uint64_t size = 0;
    for (const char *const suffix : {"", "-wal"})
        if (const auto facts = source.find(std::string(databaseBelowMedia) + suffix))
            size += facts->size;
    return size <= most;
}

std::optional<std::int64_t> rowsIn(const CopyDatabase &database)
{
    const std::string table = assetTableOf(database);
    if (table.empty() || !database.areRealTables({table}, ""))
        return std::nullopt;
    std::optional<std::int64_t> count;
    database.forEachRow("select count(*) from " + table,
                        [&](const QueryRow &row) { count = row.int64(0); });
    return count;
}

/// Counts the photos of a library that was described, and finds what is missing from it. Of an
/// archive, each library would take a reading from its beginning.
void look(Session &session, ListedLibrary &library, bool isInArchive)
{
    LibraryDescription &description = library.description;
    if (isInArchive || description.isEncrypted == true)
        return;
    try {
        const Source source(session, description.name);
        description.findings = source.missing();
        if (!isSmall(source))
            return;
        const OpenedCopy copy(session, source, {});
        description.findings = copy.missing();
        library.assetCount = rowsIn(copy.connect());
    } catch (const SourceError &error) {
        description.findings.push_back(error.finding());
    } catch (const SchemaError &) {
        description.findings.push_back({SourceProblem::NoPhotoDatabase, {description.name}});
    } catch (const Failure &failure) {
        description.findings.push_back(
            {SourceProblem::UncountedPhotos, {description.name, failure.what()}});
    }
}

/// Only its name, and why, where its records cannot be read.
LibraryDescription describeOrSayWhy(Session &session, const FileTree &tree,
                                    const FoundLibrary &library)
{
    LibraryDescription unknown = {library.kind, tree.shown(library.path), {}, {}, {}, {}, {}, {}};
    try {
        return describe(session, tree, library);
    } catch (const Failure &failure) {
        unknown.findings = {{SourceProblem::UnsearchedPlaces, {unknown.name, "1", failure.what()}}};
    } catch (const SourceError &error) {
        unknown.findings = {error.finding()};
    }
    return unknown;
}

bool isBefore(const ListedLibrary &one, const ListedLibrary &other)
{
    const auto order = [](const LibraryDescription &library) {
        return std::pair(library.backupDate ? -library.backupDate->seconds : 0, library.name);
    };
    return order(one.description) < order(other.description);
}

} // namespace

LibraryList listLibraries(Session &session, const std::string &name)
{
    constexpr std::size_t most = 10'000;
    const Place place = openPlace(session, name);
    if (place.folder)
        session.files.protectFolder(*place.folder);
    LibrarySearch search;
    if (place.database)
        search.libraries = {{SourceKind::Database, *place.database}};
    else
        search = searchLibraries(session, *place.tree, place.top, name, most);
    LibraryList list;
    list.unsearched = search.unsearched;
    for (const FoundLibrary &found : search.libraries) {
        ListedLibrary library = {describeOrSayWhy(session, *place.tree, found), std::nullopt};
        look(session, library, place.tree->isArchive());
        const std::vector<SourceFinding> &findings = library.description.findings;
        list.findings.insert(list.findings.end(), findings.begin(), findings.end());
        list.libraries.push_back(std::move(library));
    }
    std::sort(list.libraries.begin(), list.libraries.end(), isBefore);
    return list;
}

} // namespace iosphoto::tool
