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
        : top_(std::move(top)), shownTop_(top_.string()), mostFolders_(mostFolders)
    {
    }

    /// @param shownTop  what the folder is a copy of, for messages
    FolderTree(std::filesystem::path top, std::string shownTop)
        : top_(std::move(top)), shownTop_(std::move(shownTop)), mostFolders_(usualMostFolders)
    {
    }

    std::optional<FileFacts> find(const std::string &path) const override;
    bool isLink(const std::string &path) const override;
    UnsearchedFolders searchFolders(const std::string &top, FolderVisitor &visitor) const override;
    void copyOut(const std::vector<FileToCopy> &files) const override;
    std::filesystem::path onDisk(const std::string &path) const override;
    std::string shown(const std::string &path) const override;
    bool isArchive() const override { return false; }
    bool hasTimeWithoutZone(const std::string & /*path*/) const override { return false; }

private:
    /// More than a phone has, in seconds.
    static constexpr std::size_t usualMostFolders = 300'000;

    std::filesystem::path top_;
    std::string shownTop_;
    std::size_t mostFolders_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_FOLDER_TREE_H
