#include "input/library_search.h"

#include "input/backup/backup.h"
#include "input/library_layout.h"
#include "input/photo_databases.h"
#include "terminal/busy_line.h"
#include "text/translate.h"

#include <algorithm>
#include <set>

namespace iosphoto::tool {

namespace {

/// Where Media is in the file system of a phone, or in a part of it.
constexpr const char *mediaPlaces[] = {"", "private/var/mobile/Media", "var/mobile/Media",
                                       "mobile/Media", "Media"};

/// As it is called wherever it lies.
constexpr const char *databaseName = "Photos.sqlite";

/// Databases of the system with the same name, such as that of photos which others sent.
bool isOfSystem(const std::string &path)
{
    return ("/" + path).find("/Library/Photos/Libraries/") != std::string::npos;
}

bool endsWith(const std::string &text, const std::string &end)
{
    return text.size() >= end.size() &&
           text.compare(text.size() - end.size(), end.size(), end) == 0;
}

/// By its name, since many files lie in folders.
bool isCalledDatabase(const std::string &name)
{
    // A Mac packs notes of its own on a file as "._" and its name.
    return endsWith(name, ".sqlite") && name.compare(0, 2, "._") != 0;
}

bool isCalledArchive(const std::string &name)
{
    constexpr const char *ends[] = {".zip",    ".tar",    ".tgz",     ".tbz2",    ".txz",
                                    ".tar.gz", ".tar.xz", ".tar.bz2", ".tar.zst", ".7z"};
    return std::any_of(std::begin(ends), std::end(ends),
                       [&](const char *end) { return endsWith(name, end); });
}

/// Whether a folder of a backup holds stored files, which are in folders by their first two digits.
bool isOfStoredFiles(const std::string &name)
{
    return name.size() == 2 && name.find_first_not_of("0123456789abcdef") == std::string::npos;
}

/// Looks into one folder after the other.
class Search : public FolderVisitor
{
public:
    Search(const FileTree &tree, std::string top, std::size_t most)
        : tree_(tree), top_(std::move(top)), most_(most)
    {
    }

    bool enter(const std::string &folder) override
    {
        if (libraries_.size() > most_)
            return false;
        if (isInBackup(folder))
            return enterInBackup(folder);
        if (isPhotoDataOfLibrary(folder))
            return false;
        const auto library = libraryAt(folder);
        if (library && paths_.insert(library->path).second)
            libraries_.push_back(*library);
        if (library && library->kind == SourceKind::Backup)
            inBackups_.insert(folder);
        return true;
    }

    void meetFile(const std::string &path) override
    {
        const std::string name = nameOf(path);
        if (isCalledArchive(name))
            passedOver_[tree_.isArchive() ? PassedOver::PackedArchive : PassedOver::Archive]
                .push_back(path);
        else if (isCalledDatabase(name) && isOfSystem(path))
            passedOver_[PassedOver::SystemDatabase].push_back(path);
        else if (isCalledDatabase(name))
            (name == databaseName ? databases_ : otherDatabases_).push_back(path);
    }

    void meetLink(const std::string &path) override
    {
        passedOver_[PassedOver::Link].push_back(path);
    }

    /// To be called at the end.
    LibrarySearch result() &&
    {
        if (libraries_.empty() && databases_.empty())
            databases_.swap(otherDatabases_);
        else if (!otherDatabases_.empty())
            passedOver_[PassedOver::OtherDatabase] = std::move(otherDatabases_);
        for (const std::string &path : databases_)
            libraries_.push_back({SourceKind::Database, path});
        return {std::move(libraries_), {}, std::move(passedOver_)};
    }

private:
    std::optional<FoundLibrary> libraryAt(const std::string &folder) const
    {
        // First, as a media folder in it is found all the same, when that is looked into.
        if (isBackup(tree_, folder))
            return FoundLibrary{SourceKind::Backup, folder};
        for (const char *const place : mediaPlaces) {
            const std::string media = joinedPath(folder, place);
            const std::string database = joinedPath(media, databaseBelowMedia);
            if (!isOfSystem(database) && isThere(database, folder))
                return FoundLibrary{SourceKind::MediaFolder, media};
            if (folder != top_) // below, each place is a folder that is looked into
                break;
        }
        return std::nullopt;
    }

    /// Whether there is a file that no link in the folder leads to.
    bool isThere(const std::string &path, const std::string &folder) const
    {
        for (std::string part = path; part.size() > folder.size(); part = parentOf(part))
            if (tree_.isLink(part))
                return false;
        return tree_.find(path).has_value();
    }

    bool isInBackup(const std::string &folder) const
    {
        return folder != top_ && inBackups_.count(parentOf(folder)) != 0;
    }

    /// Whether a folder is that in a media folder which holds its database.
    bool isPhotoDataOfLibrary(const std::string &folder) const
    {
        return nameOf(folder) == parentOf(databaseBelowMedia) &&
               paths_.count(parentOf(folder)) != 0;
    }

    /// Looks for libraries that do not belong there.
    bool enterInBackup(const std::string &folder)
    {
        if (paths_.count(parentOf(folder)) != 0 && isOfStoredFiles(nameOf(folder)))
            return false;
        const auto library = libraryAt(folder);
        if (library)
            passedOver_[PassedOver::NestedLibrary].push_back(library->path);
        else
            inBackups_.insert(folder);
        return !library;
    }

    const FileTree &tree_;
    std::string top_;
    std::size_t most_;
    std::vector<FoundLibrary> libraries_;
    std::set<std::string> paths_;             ///< of these
    std::set<std::string> inBackups_;         ///< folders of these and in them
    std::vector<std::string> databases_;      ///< that lie there without the folders of a phone
    std::vector<std::string> otherDatabases_; ///< of other names
    PassedOverPlaces passedOver_;
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
    if (unsearched.hasTooDeep)
        findings.push_back(
            {SourceProblem::TooDeepFolders, {shownName, std::to_string(deepestFolder)}});
    return findings;
}

void keepPhotoDatabases(Session &session, const FileTree &tree, LibrarySearch &search)
{
    std::vector<std::string> lone;
    for (const FoundLibrary &library : search.libraries)
        if (library.kind == SourceKind::Database)
            lone.push_back(library.path);
    if (lone.empty())
        return;
    const std::vector<std::string> found = photoDatabasesAmong(session, tree, lone);
    const std::set<std::string> ofPhotos(found.begin(), found.end());
    std::vector<FoundLibrary> libraries;
    for (FoundLibrary &library : search.libraries)
        if (library.kind != SourceKind::Database || ofPhotos.count(library.path) != 0)
            libraries.push_back(std::move(library));
        else
            search.passedOver[PassedOver::NoPhotoDatabase].push_back(library.path);
    search.libraries = std::move(libraries);
}

SeveralLibraries several(Session &session, const FileTree &tree, const LibrarySearch &search,
                         const std::string &shownName)
{
    const auto isOfBackup = [](const FoundLibrary &library) {
        return library.kind == SourceKind::Backup;
    };
    return {shownName, std::all_of(search.libraries.begin(), search.libraries.end(), isOfBackup),
            describe(session, tree, search.libraries), search.unsearched,
            namesOf(tree, search.passedOver)};
}

NoLibraryFound none(const FileTree &tree, const LibrarySearch &search, const std::string &shownName)
{
    for (const SourceFinding &unsearched : search.unsearched)
        if (unsearched.kind == SourceProblem::EndedSearch)
            return {{SourceProblem::NoLibrarySoFar, unsearched.facts},
                    {},
                    namesOf(tree, search.passedOver)};
    return {{SourceProblem::NoLibrary, {shownName, databaseBelowMedia}},
            search.unsearched,
            namesOf(tree, search.passedOver)};
}

/// Whoever names the very folder of a library means that one.
void keepThatOf(const std::string &folder, LibrarySearch &search)
{
    std::vector<FoundLibrary> &all = search.libraries;
    if (all.empty() || all.front().kind == SourceKind::Database || all.front().path != folder)
        return;
    for (auto other = all.begin() + 1; other != all.end(); ++other)
        search.passedOver[PassedOver::OtherLibrary].push_back(other->path);
    all.resize(1);
}

} // namespace

LibrarySearch searchLibraries(Session &session, const FileTree &tree, const std::string &top,
                              const std::string &shownName, std::size_t most)
{
    Search search(tree, top, most);
    const UnsearchedFolders unsearched = [&] {
        const BusyLine busy(session.terminal, translate("searching folders"));
        return tree.searchFolders(top, search);
    }();
    LibrarySearch result = std::move(search).result();
    result.unsearched = findingsOf(unsearched, !result.libraries.empty(), shownName);
    return result;
}

void passOverOtherDatabases(Session &session, const FileTree &tree, LibrarySearch &search)
{
    keepPhotoDatabases(session, tree, search);
    const auto others = search.passedOver.find(PassedOver::OtherDatabase);
    if (!search.libraries.empty() || others == search.passedOver.end())
        return;
    for (const std::string &path : others->second)
        search.libraries.push_back({SourceKind::Database, path});
    search.passedOver.erase(others);
    keepPhotoDatabases(session, tree, search);
}

std::vector<PassedOverNames> namesOf(const FileTree &tree, const PassedOverPlaces &places)
{
    constexpr std::size_t mostNames = 3;
    std::vector<PassedOverNames> all;
    for (const auto &[reason, paths] : places) {
        PassedOverNames names = {reason, paths.size(), {}};
        for (std::size_t i = 0; i < std::min(paths.size(), mostNames); ++i)
            names.first.push_back(tree.shown(paths[i]));
        all.push_back(std::move(names));
    }
    return all;
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

std::unique_ptr<LibraryLayout> onlyLibrary(Session &session, const FileTree &tree,
                                           LibrarySearch &search, const std::string &top,
                                           const std::string &shownName)
{
    keepThatOf(top, search);
    // A single one that is no photo database is told why, when it is read.
    if (search.libraries.size() > 1 || search.passedOver.count(PassedOver::OtherDatabase) != 0)
        passOverOtherDatabases(session, tree, search);
    if (search.libraries.size() > 1)
        throw several(session, tree, search, shownName);
    if (search.libraries.empty())
        throw none(tree, search, shownName);
    return layoutOf(session, tree, search.libraries.front());
}

} // namespace iosphoto::tool
