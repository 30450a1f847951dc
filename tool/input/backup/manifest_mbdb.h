#ifndef IOSPHOTO_TOOL_MANIFEST_MBDB_H
#define IOSPHOTO_TOOL_MANIFEST_MBDB_H

#include "input/backup/backup_index.h"
#include "input/source_problem.h"

#include <filesystem>
#include <map>

namespace iosphoto::tool {

/// The index of a backup before iOS 10: a header, then one record a file.
class ManifestMbdb : public BackupIndex
{
public:
    /// Throws SourceError when it cannot be read, is something else or ends within a record.
    /// @param shownName  the file in the backup, for messages
    ManifestMbdb(const std::filesystem::path &file, const std::string &shownName);

    std::optional<std::string> locate(const std::string &mediaPath) const override;
    std::optional<FileRecord> record(const std::string &mediaPath) const override;
    std::vector<std::string> storedFiles() const override;

private:
    std::map<std::string, FileRecord> files_; ///< by their paths in the domain
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_MANIFEST_MBDB_H
