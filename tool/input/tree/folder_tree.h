#ifndef IOSPHOTO_TOOL_FOLDER_TREE_H
#define IOSPHOTO_TOOL_FOLDER_TREE_H

#include "input/tree/file_tree.h"

namespace iosphoto::tool {

/// A folder on disk.
class FolderTree : public FileTree
{
public:
    explicit FolderTree(std::filesystem::path top) : top_(std::move(top)) {}

    std::optional<FileFacts> find(const std::string &path) const override;
    std::vector<std::string> searchedFolders() const override;
    std::vector<std::string> loneFiles() const override { return {}; }
    void copyOut(const std::vector<FileToCopy> &files) const override;
    std::filesystem::path onDisk(const std::string &path) const override;
    std::string shown(const std::string &path) const override { return onDisk(path).string(); }
    bool isArchive() const override { return false; }

private:
    std::filesystem::path top_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_FOLDER_TREE_H
