#include "input/place.h"

#include "files/source_file.h"
#include "input/backup/backup_records.h"
#include "input/backup/stored_names.h"
#include "input/library_layout.h"
#include "input/tree/archive_reader.h"
#include "input/tree/archive_tree.h"
#include "input/tree/folder_tree.h"
#include "terminal/busy_line.h"
#include "text/translate.h"

#include <algorithm>
#include <functional>
#include <iterator>

namespace iosphoto::tool {

namespace fs = std::filesystem;

namespace {

/// A file, and a path in the archive that it is to be.
struct PathInFile
{
    std::string file;
    std::string path;
};

/// Looks for a part of a path that is a file, where nothing has the whole one.
std::optional<PathInFile> splitAtFile(const std::string &name)
{
    const std::string input = std::string(StandardInput::device) + "/";
    if (name.rfind(input, 0) == 0)
        return PathInFile{StandardInput::device, name.substr(input.size())};
    std::error_code ignored;
    fs::path file = name;
    while (file.has_relative_path() && !fs::exists(file, ignored))
        file = file.parent_path();
    const std::string found = file.string();
    if (found.size() == name.size() || !fs::is_regular_file(file, ignored))
        return std::nullopt;
    const std::size_t path = name.find_first_not_of('/', found.size());
    return PathInFile{found, path != std::string::npos ? name.substr(path) : ""};
}

bool hasBackupIndex(const std::function<bool(const char *)> &has)
{
    return std::any_of(std::begin(backupIndexNames), std::end(backupIndexNames), has);
}

/// The backup in which a database has its stored name, whose log is not beside it.
std::optional<fs::path> backupAround(const fs::path &file,
                                     const std::function<bool(const fs::path &)> &isThere)
{
    if (file.filename() != storedName(databaseBelowMedia))
        return std::nullopt;
    for (const fs::path &folder : {file.parent_path(), file.parent_path().parent_path()})
        if (hasBackupIndex([&](const char *name) { return isThere(folder / name); }))
            return folder;
    return std::nullopt;
}

/// The one around PhotoData where the user named just that.
fs::path withoutPhotoData(const fs::path &folder)
{
    return folder.filename() == "PhotoData" ? folder.parent_path() : folder;
}

std::optional<fs::path> folderToSearch(const fs::path &named)
{
    if (fs::is_directory(named))
        return withoutPhotoData(named);
    return backupAround(named, [](const fs::path &file) {
        std::error_code ignored;
        return fs::exists(file, ignored);
    });
}

void goTo(Place &place, const ArchiveTree &tree, const std::string &named)
{
    const std::string path = pathInArchive(named);
    if (tree.find(path)) {
        const auto backup = backupAround(
            path, [&](const fs::path &file) { return tree.find(file.string()).has_value(); });
        if (backup)
            place.top = backup->string();
        else
            place.database = path;
        return;
    }
    const bool isOutside = path.empty() && named.find("..") != std::string::npos;
    if (isOutside || !tree.hasFolder(path))
        throw SourceError(SourceProblem::NoSuchEntry, {tree.shown(""), named});
    place.top = withoutPhotoData(path).string();
}

void openArchive(Place &place, Session &session, const fs::path &archive,
                 const std::string &shownName, const std::string &path)
{
    const BusyLine busy(session.terminal, translate("reading the archive"));
    auto tree = std::make_unique<ArchiveTree>(archive, shownName);
    goTo(place, *tree, path);
    place.tree = std::move(tree);
}

void openFile(Place &place, Session &session, const fs::path &file, const std::string &shownName)
{
    if (isArchive(file)) {
        openArchive(place, session, file, shownName, "");
        return;
    }
    // The files beside a database lie beside the target of a link.
    place.tree = std::make_unique<FolderTree>(file.parent_path());
    place.database = file.filename().string();
}

void openPath(Place &place, Session &session, const fs::path &path)
{
    place.folder = folderToSearch(path);
    if (place.folder)
        place.tree = std::make_unique<FolderTree>(*place.folder);
    else
        openFile(place, session, sourceFile(path, ""), path.string());
}

/// The file to read, once what comes through a pipe is kept in one.
fs::path receive(Place &place, Session &session)
{
    const BusyLine busy(session.terminal, translate("reading standard input"));
    place.input = std::make_unique<StandardInput>(session.files);
    return place.input->file();
}

} // namespace

Place openPlace(Session &session, const std::string &name)
{
    Place place;
    place.name = name;
    const auto split = splitAtFile(name);
    const std::string &named = split ? split->file : name;
    const auto redirected = isStandardInput(named) ? redirectedInput() : std::nullopt;
    const bool isStream = isStandardInput(named) && !redirected;
    const fs::path path = isStream     ? receive(place, session)
                          : redirected ? *redirected
                                       : resolved(named);
    const std::string shownName = isStream ? StandardInput::device : path.string();
    if (split && isArchive(path))
        openArchive(place, session, path, shownName, split->path);
    else if (split)
        throw SourceError(SourceProblem::NoSuchEntry, {shownName, split->path});
    else if (isStream)
        openFile(place, session, path, shownName);
    else
        openPath(place, session, path);
    return place;
}

} // namespace iosphoto::tool
