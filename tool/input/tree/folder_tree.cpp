#include "input/tree/folder_tree.h"

#include "files/consistent_copy.h"
#include "files/source_file.h"
#include "text/system_error.h"
#include "unnoticed_open.h"

#include <algorithm>
#include <cerrno>
#include <deque>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>

namespace iosphoto::tool {

namespace fs = std::filesystem;

namespace {

using OpenFolder = std::unique_ptr<DIR, int (*)(DIR *)>;

OpenFolder openFolder(const fs::path &folder)
{
    const int descriptor = openUnnoticed(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    DIR *const opened = descriptor >= 0 ? fdopendir(descriptor) : nullptr;
    if (opened == nullptr)
        throw mayNotRead(folder, systemError(errno));
    return {opened, closedir};
}

/// The names in a folder, in order.
struct Entries
{
    std::vector<std::string> folders;
    std::vector<std::string> files;
    std::vector<std::string> links; ///< to anything: to look where would change their access times
};

mode_t kindOf(DIR *parent, const dirent &entry)
{
    if (entry.d_type != DT_UNKNOWN)
        return static_cast<mode_t>(DTTOIF(entry.d_type));
    struct stat facts = {};
    const bool isThere = fstatat(dirfd(parent), entry.d_name, &facts, AT_SYMLINK_NOFOLLOW) == 0;
    return isThere ? facts.st_mode & S_IFMT : 0;
}

void add(Entries &entries, const std::string &name, mode_t kind)
{
    if (kind == S_IFDIR)
        entries.folders.push_back(name);
    else if (kind == S_IFREG)
        entries.files.push_back(name);
    else if (kind == S_IFLNK)
        entries.links.push_back(name);
}

Entries entriesOf(const fs::path &folder)
{
    Entries entries;
    const OpenFolder opened = openFolder(folder);
    errno = 0;
    while (const dirent *const entry = readdir(opened.get())) {
        const std::string name = entry->d_name;
        if (name != "." && name != "..")
            add(entries, name, kindOf(opened.get(), *entry));
        errno = 0;
    }
    if (errno != 0)
        throw mayNotRead(folder, systemError(errno));
    for (std::vector<std::string> *const names : {&entries.folders, &entries.files, &entries.links})
        std::sort(names->begin(), names->end());
    return entries;
}

bool isDeepest(const std::string &folder)
{
    return std::count(folder.begin(), folder.end(), '/') + 1 >= deepestFolder;
}

} // namespace

fs::path FolderTree::onDisk(const std::string &path) const
{
    return path.empty() ? top_ : top_ / path;
}

std::optional<FileFacts> FolderTree::find(const std::string &path) const
{
    const fs::path file = onDisk(path);
    struct stat facts = {};
    if (stat(file.c_str(), &facts) == 0)
        return S_ISREG(facts.st_mode)
                   ? std::make_optional(FileFacts{static_cast<std::uint64_t>(facts.st_size),
                                                  UnixTime{facts.st_mtime}})
                   : std::nullopt;
    if (errno == ENOENT || errno == ENOTDIR || errno == ENAMETOOLONG)
        return std::nullopt;
    throw mayNotRead(file, systemError(errno));
}

bool FolderTree::isLink(const std::string &path) const
{
    struct stat facts = {};
    return lstat(onDisk(path).c_str(), &facts) == 0 && S_ISLNK(facts.st_mode);
}

std::string FolderTree::shown(const std::string &path) const
{
    return path.empty() ? shownTop_ : (fs::path(shownTop_) / path).string();
}

UnsearchedFolders FolderTree::searchFolders(const std::string &top, FolderVisitor &visitor) const
{
    UnsearchedFolders unsearched;
    std::deque<std::string> waiting = {top};
    for (std::size_t count = 0; !waiting.empty(); ++count) {
        if (count == mostFolders_) {
            unsearched.endedAfter = count;
            break;
        }
        const std::string folder = std::move(waiting.front());
        waiting.pop_front();
        try {
            if (!visitor.enter(folder))
                continue;
            const Entries entries = entriesOf(onDisk(folder));
            for (const std::string &name : entries.files)
                visitor.meetFile(joinedPath(folder, name));
            for (const std::string &name : entries.links)
                visitor.meetLink(joinedPath(folder, name));
            const bool goesDown = !isDeepest(folder);
            for (const std::string &name : entries.folders)
                if (goesDown)
                    waiting.push_back(joinedPath(folder, name));
            unsearched.hasTooDeep |= !goesDown && !entries.folders.empty();
        } catch (const Failure &failure) {
            unsearched.unreadable.push_back(failure);
        }
    }
    return unsearched;
}

void FolderTree::copyOut(const std::vector<FileToCopy> &files) const
{
    std::vector<Copy> copies;
    copies.reserve(files.size());
    for (const FileToCopy &file : files) {
        if (const auto facts = find(file.path))
            requireNotLarger(shown(file.path), facts->size, file.most);
        copies.push_back({onDisk(file.path), file.target});
    }
    copyConsistently(copies);
}

} // namespace iosphoto::tool
