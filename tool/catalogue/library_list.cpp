#include "catalogue/library_list.h"

#include "schema/asset_tables.h"
#include "schema/opened_copy.h"
#include "sqlite/copy_database.h"

#include <algorithm>
#include <functional>
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

/// Counts the photos of a library, and finds what is missing from it.
void look(Session &session, Place place, ListedLibrary &library)
{
    LibraryDescription &description = library.description;
    const Source source(session, std::move(place));
    description.findings = source.missing();
    if (!isSmall(source))
        return;
    const OpenedCopy copy(session, source, {});
    description.findings = copy.missing();
    library.assetCount = rowsIn(copy.connect());
}

/// Finds what is missing without copying the database, as each library of an archive would take a
/// reading from its beginning.
void lookAtIndex(Session &session, const FileTree &tree, const FoundLibrary &found,
                 ListedLibrary &library)
{
    const auto layout = layoutOf(session, tree, found);
    layout->open();
    if (found.kind == SourceKind::Backup)
        library.description.findings = layout->missing();
    for (const char *const suffix : {"", "-wal", "-journal"})
        if (const auto path = layout->locate(std::string(databaseBelowMedia) + suffix))
            tree.requireCopyable(*path);
}

/// Does it, and notes why that cannot be done.
void lookOrSayWhy(ListedLibrary &library, const std::function<void()> &look)
{
    LibraryDescription &description = library.description;
    if (description.isEncrypted == true)
        return;
    try {
        look();
    } catch (const SourceError &error) {
        description.findings.push_back(error.finding());
    } catch (const SchemaError &) {
        description.findings.push_back({SourceProblem::NoPhotoDatabase, {description.name}});
    } catch (const Failure &failure) {
        description.findings.push_back(
            {SourceProblem::UncountedPhotos, {description.name, failure.what()}});
    }
}

bool isBefore(const ListedLibrary &one, const ListedLibrary &other)
{
    const auto order = [](const LibraryDescription &library) {
        return std::pair(library.backupDate ? -library.backupDate->seconds : 0, library.name);
    };
    return order(one.description) < order(other.description);
}

/// Whoever names a single file is told why that is no photo database.
LibraryList listOne(Session &session, Place place)
{
    const std::vector<FoundLibrary> found = {{SourceKind::Database, *place.database}};
    ListedLibrary library = {describe(session, *place.tree, found).front(), std::nullopt};
    if (!place.tree->isArchive())
        library.description.name = place.name;
    look(session, std::move(place), library);
    return {{library}, {}, library.description.findings, {}};
}

LibrarySearch searched(Session &session, const Place &place, std::size_t most)
{
    LibrarySearch search = searchLibraries(session, *place.tree, place.top, place.name, most);
    passOverOtherDatabases(session, *place.tree, search);
    if (search.libraries.size() > most) {
        search.libraries.resize(most);
        search.unsearched.push_back({SourceProblem::EndedList, {place.name, std::to_string(most)}});
    }
    return search;
}

} // namespace

LibraryList listLibraries(Session &session, const std::string &name, std::size_t most)
{
    Place place = openPlace(session, name);
    if (place.folder)
        session.files.protectFolder(*place.folder);
    if (place.database)
        return listOne(session, std::move(place));
    const LibrarySearch search = searched(session, place, most);
    LibraryList list;
    list.unsearched = search.unsearched;
    list.passedOver = namesOf(*place.tree, search.passedOver);
    for (LibraryDescription &description : describe(session, *place.tree, search.libraries))
        list.libraries.push_back({std::move(description), std::nullopt});
    for (std::size_t i = 0; i < list.libraries.size(); ++i) {
        ListedLibrary &library = list.libraries[i];
        lookOrSayWhy(library, [&] {
            if (place.tree->isArchive())
                lookAtIndex(session, *place.tree, search.libraries[i], library);
            else
                look(session, openPlace(session, library.description.name), library);
        });
        const std::vector<SourceFinding> &findings = library.description.findings;
        list.findings.insert(list.findings.end(), findings.begin(), findings.end());
    }
    std::sort(list.libraries.begin(), list.libraries.end(), isBefore);
    return list;
}

} // namespace iosphoto::tool
