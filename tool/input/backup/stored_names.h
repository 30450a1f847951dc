#ifndef IOSPHOTO_TOOL_STORED_NAMES_H
#define IOSPHOTO_TOOL_STORED_NAMES_H

#include "input/backup/backup_index.h"
#include "input/tree/file_tree.h"

#include <string>

namespace iosphoto::tool {

/// A backup whose index is lost: the names of its files are known all the same.
class StoredNames : public BackupIndex
{
public:
    StoredNames(const FileTree &tree, std::string folder) : tree_(tree), folder_(std::move(folder))
    {
    }

    std::optional<std::string> locate(const std::string &mediaPath) const override;
    std::optional<FileRecord> record(const std::string & /*mediaPath*/) const override
    {
        return std::nullopt;
    }
    std::vector<std::string> storedFiles() const override { return {}; }

private:
    const FileTree &tree_;
    std::string folder_;
};

/// The files of a backup that are below Media on the phone.
constexpr const char *mediaDomain = "CameraRollDomain";

/// The path of such a file in its domain.
std::string pathInDomain(const std::string &mediaPath);

/// The name that a backup gives to such a file: 40 hexadecimal digits.
std::string storedName(const std::string &mediaPath);

/// Where in the backup a file of that name is, from iOS 10 on; before, it was at the top.
std::string inItsFolder(const std::string &storedName);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_STORED_NAMES_H
