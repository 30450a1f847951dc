#include "input/library_search.h"

#include "input/backup/backup.h"
#include "input/library_layout.h"

#include <algorithm>
#include <iterator>

namespace iosphoto::tool {

namespace {

/// A library that was found: its kind and its path in the tree.
struct Find
{
    SourceKind kind;
    std::string path;

    bool operator==(const Find &other) const { return path == other.path; }
};

/// Where Media is in the file system of a phone, or in a part of it.
constexpr const char *mediaPlaces[] = {"", "private/var/mobile/Media", "var/mobile/Media",
                                       "mobile/Media", "Media"};

/// Databases of the system with the same name, such as that of photos which others sent.
bool isOfSystem(const std::string &path)
{
    return ("/" + path).find("/Library/Photos/Libraries/") != std::string::npos;
}

bool isInside(const std::string &path, const std::string &folder)
{
    return folder.empty() || path.compare(0, folder.size() + 1, folder + "/") == 0;
}

std::optional<Find> libraryAt(const FileTree &tree, const std::string &folder)
{
    for (const char *const place : mediaPlaces) {
        const std::string media = joinedPath(folder, place);
        const std::string database = joinedPath(media, databaseBelowMedia);
        if (tree.find(database) && !isOfSystem(database))
            return Find{SourceKind::MediaFolder, media};
    }
    if (isBackup(tree, folder))
        return Find{SourceKind::Backup, folder};
    return std::nullopt;
}

std::vector<Find> librariesIn(const FileTree &tree)
{
    std::vector<Find> finds;
    const auto isInsideFind = [&](const std::string &folder) {
        return std::any_of(finds.begin(), finds.end(),
                           [&](const Find &find) { return isInside(folder, find.path); });
    };
    for (const std::string &folder : tree.searchedFolders()) {
        if (finds.size() > SeveralLibraries::mostCounted)
            break;
        if (isInsideFind(folder))
            continue;
        const auto find = libraryAt(tree, folder);
        if (find && std::find(finds.begin(), finds.end(), *find) == finds.end())
            finds.push_back(*find);
    }
    return finds;
}

/// Databases that lie there without the folders of a phone.
std::vector<Find> loneDatabasesIn(const FileTree &tree)
{
    std::vector<std::string> paths;
    for (const std::string &folder : tree.searchedFolders())
        if (std::string path = joinedPath(folder, "Photos.sqlite"); tree.find(path))
            paths.push_back(std::move(path));
    if (paths.empty())
        paths = tree.loneFiles();
    std::vector<Find> finds;
    for (const std::string &path : paths)
        if (finds.size() <= SeveralLibraries::mostCounted && !isOfSystem(path))
            finds.push_back({SourceKind::Database, path});
    return finds;
}

SeveralLibraries several(const FileTree &tree, const std::string &shownName,
                         const std::vector<Find> &finds)
{
    SeveralLibraries libraries = {shownName, true, tree.isArchive(), {}};
    for (const Find &find : finds) {
        libraries.areBackups = libraries.areBackups && find.kind == SourceKind::Backup;
        libraries.names.push_back(tree.shown(find.path));
    }
    return libraries;
}

std::unique_ptr<LibraryLayout> layoutOf(Session &session, const FileTree &tree, const Find &find)
{
    switch (find.kind) {
    case SourceKind::Backup:
        return std::make_unique<Backup>(session, tree, find.path);
    case SourceKind::MediaFolder:
        return std::make_unique<MediaFolder>(find.path);
    case SourceKind::Database:
        break;
    }
    return std::make_unique<LoneDatabase>(find.path);
}

} // namespace

std::unique_ptr<LibraryLayout> findLibrary(Session &session, const FileTree &tree,
                                           const std::string &shownName)
{
    std::vector<Find> finds = librariesIn(tree);
    if (finds.empty())
        finds = loneDatabasesIn(tree);
    if (finds.empty())
        throw SourceError(SourceProblem::NoLibrary, {shownName, databaseBelowMedia});
    if (finds.size() > 1)
        throw several(tree, shownName, finds);
    return layoutOf(session, tree, finds.front());
}

} // namespace iosphoto::tool
