#include "input/tree/folder_tree.h"

#include "files/consistent_copy.h"
#include "files/source_file.h"
#include "text/system_error.h"

#include <algorithm>
#include <cerrno>
#include <sys/stat.h>

namespace iosphoto::tool {

namespace fs = std::filesystem;

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

std::vector<std::string> FolderTree::searchedFolders() const
{
    std::vector<std::string> folders = {""};
    std::error_code error;
    for (fs::directory_iterator at(top_, error), end; !error && at != end; at.increment(error)) {
        // A link leads to a folder that has its own place.
        std::error_code ignored;
        if (fs::is_directory(at->symlink_status(ignored)))
            folders.push_back(at->path().filename().string());
    }
    if (error)
        throw mayNotRead(top_, systemError(error.value()));
    std::sort(folders.begin(), folders.end());
    return folders;
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
