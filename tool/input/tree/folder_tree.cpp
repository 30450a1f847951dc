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

/// A link leads to a folder that has its own place.
bool isFolder(DIR *parent, const dirent &entry)
{
    if (entry.d_type != DT_UNKNOWN)
        return entry.d_type == DT_DIR;
    struct stat facts = {};
    return fstatat(dirfd(parent), entry.d_name, &facts, AT_SYMLINK_NOFOLLOW) == 0 &&
           S_ISDIR(facts.st_mode);
}

std::vector<std::string> foldersIn(const fs::path &folder)
{
    std::vector<std::string> names;
    const OpenFolder opened = openFolder(folder);
    errno = 0;
    while (const dirent *const entry = readdir(opened.get())) {
        const std::string name = entry->d_name;
        if (name != "." && name != ".." && isFolder(opened.get(), *entry))
            names.push_back(name);
        errno = 0;
    }
    if (errno != 0)
        throw mayNotRead(folder, systemError(errno));
    std::sort(names.begin(), names.end());
    return names;
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

UnsearchedFolders
FolderTree::searchFolders(const std::string &top,
                          const std::function<bool(const std::string &)> &look) const
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
            if (!look(folder))
                continue;
            for (const std::string &name : foldersIn(onDisk(folder)))
                waiting.push_back(joinedPath(folder, name));
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
