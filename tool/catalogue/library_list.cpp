#include "catalogue/library_list.h"

#include "input/private_copy.h"
#include "schema/asset_tables.h"
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

/// Of an archive, each library would take a reading from its beginning.
std::optional<std::int64_t> countAssets(Session &session, const LibraryDescription &library,
                                        bool isInArchive)
{
    if (isInArchive || library.isEncrypted == true)
        return std::nullopt;
    try {
        const Source source(session, library.name);
        if (!isSmall(source))
            return std::nullopt;
        const PrivateCopy copy(session, source);
        return rowsIn({copy.database(), source.databaseName()});
    } catch (const Failure &) { // who reads the library is told
        return std::nullopt;
    } catch (const SourceError &) {
        return std::nullopt;
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
        const LibraryDescription library = describeOrSayWhy(session, *place.tree, found);
        list.findings.insert(list.findings.end(), library.findings.begin(), library.findings.end());
        list.libraries.push_back({library, countAssets(session, library, place.tree->isArchive())});
    }
    std::sort(list.libraries.begin(), list.libraries.end(), isBefore);
    return list;
}

} // namespace iosphoto::tool
