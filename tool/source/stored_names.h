#ifndef IOSPHOTO_TOOL_STORED_NAMES_H
#define IOSPHOTO_TOOL_STORED_NAMES_H

#include "source/backup_index.h"
#include "source/file_tree.h"

namespace iosphoto::tool {

/// A backup whose index is lost: the names of its files are known all the same.
class StoredNames : public BackupIndex
{
public:
    StoredNames(const FileTree &tree, std::string folder) : tree_(tree), folder_(std::move(folder))
    {
    }

    std::optional<std::string> locate(const std::string &mediaPath) const override;
    std::vector<std::string> storedFiles() const override { return {}; }

private:
    const FileTree &tree_;
    std::string folder_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_STORED_NAMES_H
