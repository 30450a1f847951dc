#ifndef IOSPHOTO_TOOL_MANIFEST_DB_H
#define IOSPHOTO_TOOL_MANIFEST_DB_H

#include "input/backup/backup_index.h"
#include "sqlite/copy_database.h"

#include <filesystem>
#include <functional>

namespace iosphoto::tool {

/// The index of a backup since iOS 10: a database.
class ManifestDb : public BackupIndex
{
public:
    /// Throws when it cannot be read, or is no index: SourceError where it is damaged, as the other
    /// functions do.
    /// @param copy       a private copy, as SQLite may change it
    /// @param shownName  the file in the backup, for messages
    ManifestDb(const std::filesystem::path &copy, std::string shownName);

    std::optional<std::string> locate(const std::string &mediaPath) const override;
    std::vector<std::string> storedFiles() const override;

private:
    void requireIndex() const;
    /// Reads, and throws a SourceError when that meets damage.
    void sayingDamage(const std::function<void()> &read) const;

    CopyDatabase database_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_MANIFEST_DB_H
