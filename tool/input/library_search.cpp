#include "input/library_search.h"

#include "input/backup/backup.h"
#include "input/library_layout.h"
#include "terminal/busy_line.h"
#include "text/translate.h"

#include <algorithm>
#include <set>

namespace iosphoto::tool {

namespace {

/// Where Media is in the file system of a phone, or in a part of it.
constexpr const char *mediaPlaces[] = {"", "private/var/mobile/Media", "var/mobile/Media",
                                       "mobile/Media", "Media"};

/// Databases of the system with the same name, such as that of photos which others sent.
bool isOfSystem(const std::string &path)
{
    return ("/" + path).find("/Library/Photos/Libraries/") != std::string::npos;
}

/// Looks into one folder after the other.
class Search
{
public:
    Search(const FileTree &tree, std::string top, std::size_t most)
        : tree_(tree), top_(std::move(top)), most_(most)
    {
    }

    /// Whether to look into the folders in this one.
    bool look(const std::string &folder)
    {
        if (libraries_.size() > most_ || paths_.count(folder) != 0)
            return false;
        if (const auto library = libraryAt(folder)) {
            paths_.insert(library->path);
            libraries_.push_back(*library);
            return library->path != folder;
        }
        if (std::string path = joinedPath(folder, "Photos.sqlite"); tree_.find(path))
            loneDatabases_.push_back(std::move(path));
        return true;
    }

    /// To be called at the end.
    std::vector<FoundLibrary> libraries() const
    {
        if (!libraries_.empty())
            return libraries_;
        std::vector<FoundLibrary> databases;
        for (const std::string &path :
             loneDatabases_.empty() ? tree_.loneFiles(top_) : loneDatabases_)
            if (databases.size() <= most_ && !isOfSystem(path))
                databases.push_back({SourceKind::Database, path});
        return databases;
    }

private:
    std::optional<FoundLibrary> libraryAt(const std::string &folder) const
    {
        for (const char *const place : mediaPlaces) {
            const std::string media = joinedPath(folder, place);
            const std::string database = joinedPath(media, databaseBelowMedia);
            if (tree_.find(database) && !isOfSystem(database))
                return FoundLibrary{SourceKind::MediaFolder, media};
            if (folder != top_) // below, each place is a folder that is looked into
                break;
        }
        if (isBackup(tree_, folder))
            return FoundLibrary{SourceKind::Backup, folder};
        return std::nullopt;
    }

    const FileTree &tree_;
    std::string top_;
    std::size_t most_;
    std::vector<FoundLibrary> libraries_;
    std::set<std::string> paths_;            ///< of these
    std::vector<std::string> loneDatabases_; ///< that lie there without the folders of a phone
};

/// Throws Failure where nothing was found since a folder could not be read.
std::vector<SourceFinding> findingsOf(const UnsearchedFolders &unsearched, bool isAnythingFound,
                                      const std::string &shownName)
{
    std::vector<SourceFinding> findings;
    if (!unsearched.unreadable.empty()) {
        const Failure &first = unsearched.unreadable.front();
        if (!isAnythingFound)
            throw first;
        findings.push_back(
            {SourceProblem::UnsearchedPlaces,
             {shownName, std::to_string(unsearched.unreadable.size()), first.what()}});
    }
    if (unsearched.endedAfter)
        findings.push_back(
            {SourceProblem::EndedSearch, {shownName, std::to_string(*unsearched.endedAfter)}});
    return findings;
}

std::unique_ptr<LibraryLayout> layoutOf(Session &session, const FileTree &tree,
                                        const FoundLibrary &library)
{
    switch (library.kind) {
    case SourceKind::Backup:
        return std::make_unique<Backup>(session, tree, library.path);
    case SourceKind::MediaFolder:
        return std::make_unique<MediaFolder>(library.path);
    case SourceKind::Database:
        break;
    }
    return std::make_unique<LoneDatabase>(library.path);
}

/// Only its name where the rest cannot be had at once.
LibraryDescription describeShortly(Session &session, const FileTree &tree,
                                   const FoundLibrary &library)
{
    if (!tree.isArchive()) // which would be read from its beginning
        try {
            return describe(session, tree, library);
        } catch (const Failure &) { // who names the library is told
        }
    return {library.kind, tree.shown(library.path), {}, {}, {}, {}, {}, {}};
}

SeveralLibraries several(Session &session, const FileTree &tree, const LibrarySearch &search,
                         const std::string &shownName)
{
    SeveralLibraries several = {shownName, true, {}, search.unsearched};
    for (const FoundLibrary &library : search.libraries) {
        several.areBackups = several.areBackups && library.kind == SourceKind::Backup;
        several.libraries.push_back(describeShortly(session, tree, library));
    }
    return several;
}

} // namespace

LibrarySearch searchLibraries(Session &session, const FileTree &tree, const std::string &top,
                              const std::string &shownName, std::size_t most)
{
    Search search(tree, top, most);
    const UnsearchedFolders unsearched = [&] {
        const BusyLine busy(session.terminal, translate("searching folders"));
        return tree.searchFolders(top,
                                  [&](const std::string &folder) { return search.look(folder); });
    }();
    LibrarySearch result = {search.libraries(), {}};
    result.unsearched = findingsOf(unsearched, !result.libraries.empty(), shownName);
    return result;
}

LibraryDescription describe(Session &session, const FileTree &tree, const FoundLibrary &library)
{
    LibraryDescription description = {
        library.kind, tree.shown(library.path), {}, {}, {}, {}, {}, {}};
    if (library.kind != SourceKind::Backup)
        return description;
    const BackupRecords records(session, tree, library.path, BackupRecords::Extent::Lists);
    description.device = records.device();
    description.deviceName = records.identity().name;
    description.backupDate = records.date();
    description.isEncrypted = records.isEncrypted();
    description.isFinished = records.isFinished();
    description.findings = records.findings();
    return description;
}

std::unique_ptr<LibraryLayout> onlyLibrary(Session &session, const FileTree &tree,
                                           const LibrarySearch &search,
                                           const std::string &shownName)
{
    if (search.libraries.size() > 1)
        throw several(session, tree, search, shownName);
    if (search.libraries.size() == 1)
        return layoutOf(session, tree, search.libraries.front());
    for (const SourceFinding &finding : search.unsearched)
        if (finding.kind == SourceProblem::EndedSearch)
            throw SourceError(SourceProblem::NoLibrarySoFar, finding.facts);
    throw SourceError(SourceProblem::NoLibrary, {shownName, databaseBelowMedia});
}

} // namespace iosphoto::tool
