#ifndef IOSPHOTO_TOOL_BACKUP_H
#define IOSPHOTO_TOOL_BACKUP_H

#include "files/private_folder.h"
#include "input/backup/backup_index.h"
#include "input/library_layout.h"
#include "input/tree/file_tree.h"
#include "session/session.h"

#include <memory>

namespace iosphoto::tool {

constexpr const char *backupIndexNames[] = {"Manifest.db", "Manifest.mbdb"};

/// Whether a folder is a backup: it has the index of one, or the database under its stored name.
bool isBackup(const FileTree &tree, const std::string &folder);

/// A folder that iTunes or Finder made of a phone.
class Backup : public LibraryLayout
{
public:
    /// Throws SourceError when it is encrypted, has no database, or cannot be read.
    Backup(Session &session, const FileTree &tree, std::string folder);

    SourceKind kind() const override { return SourceKind::Backup; }
    std::optional<std::string> locate(const std::string &mediaPath) const override;
    std::optional<RecordedDevice> device() const override { return device_; }
    std::optional<UnixTime> backupDate() const override { return date_; }
    std::vector<SourceFinding> missing() const override { return missing_; }
    std::vector<std::string> records() const override;

private:
    void copyRecords() const;
    void readProperties();
    void requireKnownEncryption() const;
    std::unique_ptr<BackupIndex> openIndex();
    void requireDatabase() const;
    void noteWhatIsMissing();
    void noteMissingMedia();
    bool has(const std::string &name) const;
    std::string shown(const std::string &name) const;

    FileUse &fileUse_;
    const FileTree &tree_;
    std::string folder_;
    PrivateFolder copies_; ///< of the records
    std::unique_ptr<BackupIndex> index_;
    std::string indexName_; ///< empty when there is none
    std::optional<RecordedDevice> device_;
    std::optional<UnixTime> date_;
    std::vector<SourceFinding> missing_;
    bool isManifestDamaged_ = false;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_BACKUP_H
