#include "input/source.h"

#include "files/source_file.h"
#include "input/backup/backup.h"
#include "input/backup/stored_names.h"
#include "input/library_layout.h"
#include "input/library_search.h"
#include "input/tree/archive_reader.h"
#include "input/tree/archive_tree.h"
#include "input/tree/folder_tree.h"
#include "terminal/busy_line.h"
#include "text/translate.h"

#include <algorithm>
#include <iterator>

namespace iosphoto::tool {

namespace fs = std::filesystem;

namespace {

bool hasBackupIndex(const fs::path &folder)
{
    return std::any_of(std::begin(backupIndexNames), std::end(backupIndexNames),
                       [&](const char *name) {
                           std::error_code ignored;
                           return fs::exists(folder / name, ignored);
                       });
}

/// The folder to look in: the one around PhotoData where the user named just that, and the backup
/// where it was the stored database, whose log is not beside it.
std::optional<fs::path> folderToSearch(const fs::path &named)
{
    if (fs::is_directory(named))
        return named.filename() == "PhotoData" ? named.parent_path() : named;
    if (named.filename() == storedName(databaseBelowMedia))
        for (const fs::path &folder : {named.parent_path(), named.parent_path().parent_path()})
            if (hasBackupIndex(folder))
                return folder;
    return std::nullopt;
}

/// Paths come from databases, which may say anything.
bool staysBelowMedia(const std::string &mediaPath)
{
    const fs::path path(mediaPath);
    return path.is_relative() && std::find(path.begin(), path.end(), "..") == path.end();
}

} // namespace

Source::Source(Session &session, const std::string &name) : name_(name), databaseName_(name)
{
    folder_ = folderToSearch(resolved(name));
    if (folder_) {
        search(session, std::make_unique<FolderTree>(*folder_));
        return;
    }
    const fs::path file = sourceFile(name, "");
    isArchive_ = tool::isArchive(file);
    if (isArchive_) {
        const BusyLine busy(session.terminal, translate("reading the archive"));
        search(session, std::make_unique<ArchiveTree>(file));
        return;
    }
    // The files beside a database lie beside the target of a link.
    tree_ = std::make_unique<FolderTree>(file.parent_path());
    layout_ = std::make_unique<LoneDatabase>(file.filename().string());
}

void Source::search(Session &session, std::unique_ptr<FileTree> tree)
{
    tree_ = std::move(tree);
    layout_ = findLibrary(session, *tree_, name_);
    databaseName_ = tree_->shown(databaseFiles().front().path);
}

UnixTime Source::lastChange() const
{
    UnixTime last;
    for (const char *const suffix : {"", "-wal"})
        if (const auto facts = find(std::string(databaseBelowMedia) + suffix))
            last = std::max(last, facts->modified);
    return last;
}

std::vector<fs::path> Source::inputs() const
{
    std::vector<std::string> paths = layout_->records();
    for (const FileToCopy &file : databaseFiles())
        paths.push_back(file.path);
    std::vector<fs::path> files;
    files.reserve(paths.size());
    for (const std::string &path : paths)
        files.push_back(tree_->onDisk(path));
    files.erase(std::unique(files.begin(), files.end()), files.end());
    return files;
}

void Source::announceReading(FileUse &fileUse) const
{
    if (folder_)
        fileUse.protectFolder(*folder_);
    const std::vector<fs::path> files = inputs();
    fileUse.protectFiles(files);
    const std::string database = tree_->onDisk(databaseFiles().front().path).string();
    fileUse.protectFiles({database + "-wal", database + "-journal", database + "-shm"});
    fileUse.willRead(files);
}

std::vector<FileToCopy> Source::databaseFiles() const
{
    std::vector<FileToCopy> files;
    for (const char *const suffix : {"", "-wal", "-journal"})
        if (const auto path = layout_->locate(std::string(databaseBelowMedia) + suffix))
            files.push_back({*path, std::string(databaseFile) + suffix});
    return files;
}

void Source::copyDatabaseTo(const fs::path &folder) const
{
    std::vector<FileToCopy> files = databaseFiles();
    for (FileToCopy &file : files)
        file.target = folder / file.target;
    tree_->copyOut(files);
    if (!fs::exists(folder / databaseFile))
        throw SourceError(SourceProblem::VanishedDatabase, {databaseName_});
}

std::optional<std::string> Source::locate(const std::string &mediaPath) const
{
    return staysBelowMedia(mediaPath) ? layout_->locate(mediaPath) : std::nullopt;
}

std::optional<FileFacts> Source::find(const std::string &mediaPath) const
{
    const auto path = locate(mediaPath);
    return path ? tree_->find(*path) : std::nullopt;
}

void Source::copyOut(const std::vector<FileToCopy> &files) const
{
    std::vector<FileToCopy> located;
    for (const FileToCopy &file : files)
        if (const auto path = locate(file.path))
            located.push_back({*path, file.target});
    tree_->copyOut(located);
}

} // namespace iosphoto::tool
