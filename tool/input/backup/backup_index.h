#ifndef IOSPHOTO_TOOL_BACKUP_INDEX_H
#define IOSPHOTO_TOOL_BACKUP_INDEX_H

#include "input/backup/file_record.h"

#include <optional>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// What tells under which name a backup stores a file.
class BackupIndex
{
public:
    BackupIndex() = default;
    virtual ~BackupIndex() = default;
    BackupIndex(const BackupIndex &) = delete;
    BackupIndex &operator=(const BackupIndex &) = delete;

    /// The path in the backup of a file that has this path below Media on the phone; nothing when
    /// the backup does not hold it.
    virtual std::optional<std::string> locate(const std::string &mediaPath) const = 0;

    /// What it says besides of such a file; nothing when it says nothing that can be read.
    virtual std::optional<FileRecord> record(const std::string &mediaPath) const = 0;

    /// The paths in the backup of all files below Media that it is to hold; none where there is no
    /// list of them.
    virtual std::vector<std::string> storedFiles() const = 0;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_BACKUP_INDEX_H
