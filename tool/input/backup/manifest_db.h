#ifndef IOSPHOTO_TOOL_MANIFEST_DB_H
#define IOSPHOTO_TOOL_MANIFEST_DB_H

#include "input/backup/backup_index.h"
#include "input/backup/encrypted_index.h"
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
    /// @param copy        a private copy, as SQLite may change it; decrypted
    /// @param shownName   the file in the backup, for messages
    /// @param encryption  of an encrypted backup
    ManifestDb(const std::filesystem::path &copy, std::string shownName,
               std::optional<EncryptedIndex> encryption = std::nullopt);

    std::optional<std::string> locate(const std::string &mediaPath) const override;
    std::optional<FileRecord> record(const std::string &mediaPath) const override;
    std::vector<std::string> storedFiles() const override;

private:
    void requireIndex() const;
    /// Reads, and throws a SourceError when that meets damage.
    void sayingDamage(const std::function<void()> &read) const;

    /// The first column of the row of a file, by its path below Media.
    std::optional<std::string> lookUp(const char *statement, const std::string &mediaPath) const;

    CopyDatabase database_;
    std::optional<EncryptedIndex> encryption_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_MANIFEST_DB_H
