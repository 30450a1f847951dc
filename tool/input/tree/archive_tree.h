#ifndef IOSPHOTO_TOOL_ARCHIVE_TREE_H
#define IOSPHOTO_TOOL_ARCHIVE_TREE_H

#include "files/file_stamp.h"
#include "input/tree/file_tree.h"

#include <map>

namespace iosphoto::tool {

/// What a zip, tar or 7zip archive holds. Its index is read once, its content at each copyOut().
class ArchiveTree : public FileTree
{
public:
    /// Reads the index. Throws SourceError when the archive is damaged.
    /// @param shownName  the archive as messages show it
    ArchiveTree(std::filesystem::path archive, std::string shownName);

    std::optional<FileFacts> find(const std::string &path) const override;
    UnsearchedFolders searchFolders(const std::string &top, FolderVisitor &visitor) const override;
    void copyOut(const std::vector<FileToCopy> &files) const override;
    void requireCopyable(const std::string &path) const override;
    std::filesystem::path onDisk(const std::string & /*path*/) const override { return archive_; }
    std::string shown(const std::string &path) const override;
    bool isArchive() const override { return true; }
    bool hasTimeWithoutZone(const std::string &path) const override;

    /// Whether something is below that path.
    bool hasFolder(const std::string &path) const;

private:
    struct Entry
    {
        FileFacts facts;
        bool isHardLink;
        bool isEncrypted;
        bool isTwice;
    };

    struct Target
    {
        std::filesystem::path path;
        std::uint64_t most; ///< bytes
    };

    /// Throws SourceError when an entry is not simply a file.
    void requirePlain(const std::string &path, const Entry &entry) const;
    void extract(std::map<std::string, Target> targets) const;

    std::filesystem::path archive_;
    std::string shownName_;
    bool isZip_ = false;
    std::vector<std::string> tooDeep_; ///< that are passed over, each cut to the longest path
    std::vector<std::string> links_;   ///< that are passed over too
    FileStamp state_;
    std::map<std::string, Entry> entries_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_ARCHIVE_TREE_H
