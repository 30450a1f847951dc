#ifndef IOSPHOTO_TOOL_FOLDER_TREE_H
#define IOSPHOTO_TOOL_FOLDER_TREE_H

#include "input/tree/file_tree.h"

namespace iosphoto::tool {

/// A folder on disk.
class FolderTree : public FileTree
{
public:
    /// @param mostFolders  that are looked at in a search
    explicit FolderTree(std::filesystem::path top, std::size_t mostFolders = usualMostFolders)
        : top_(std::move(top)), mostFolders_(mostFolders)
    {
    }

    std::optional<FileFacts> find(const std::string &path) const override;
    UnsearchedFolders
    searchFolders(const std::string &top,
                  const std::function<bool(const std::string &)> &look) const override;
    std::vector<std::string> loneFiles(const std::string & /*top*/) const override { return {}; }
    void copyOut(const std::vector<FileToCopy> &files) const override;
    std::filesystem::path onDisk(const std::string &path) const override;
    std::string shown(const std::string &path) const override { return onDisk(path).string(); }
    bool isArchive() const override { return false; }
    bool hasTimeWithoutZone(const std::string & /*path*/) const override { return false; }

private:
    /// More than a phone has, in seconds.
    static constexpr std::size_t usualMostFolders = 300'000;

    std::filesystem::path top_;
    std::size_t mostFolders_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_FOLDER_TREE_H
