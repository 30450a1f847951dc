#ifndef IOSPHOTO_TOOL_BACKUP_H
#define IOSPHOTO_TOOL_BACKUP_H

#include "input/backup/backup_index.h"
#include "input/backup/backup_records.h"
#include "input/backup/encrypted_index.h"
#include "input/backup/unlocking.h"
#include "input/library_layout.h"
#include "input/tree/file_tree.h"
#include "session/session.h"

#include <memory>

namespace iosphoto::tool {

/// Whether a folder is a backup: it has the index of one, or the database under its stored name.
bool isBackup(const FileTree &tree, const std::string &folder);

/// A folder that iTunes or Finder made of a phone.
class Backup : public LibraryLayout
{
public:
    /// Throws SourceError when it cannot be read, or is encrypted and there is no password.
    Backup(Session &session, const FileTree &tree, std::string folder);

    /// Throws SourceError when it has no database, or cannot be read.
    void open() override;

    SourceKind kind() const override { return SourceKind::Backup; }
    std::optional<std::string> locate(const std::string &mediaPath) const override;
    std::optional<RecordedDevice> device() const override { return records_.device(); }
    DeviceIdentity identity() const override { return records_.identity(); }
    std::optional<UnixTime> backupDate() const override { return records_.date(); }
    std::optional<BackupEncryption> encryption() const override { return encryption_; }
    std::vector<SourceFinding> missing() const override { return missing_; }
    std::vector<std::string> records() const override { return records_.files(); }
    std::optional<SourceFinding> decrypt(const std::string &mediaPath,
                                         const std::filesystem::path &copy) const override;

private:
    /// Asks for the password, and begins to make keys of it.
    void beginUnlocking(Session &session);
    /// Does without an index that is damaged, where the database is found all the same.
    std::unique_ptr<BackupIndex> openIndex();
    std::unique_ptr<BackupIndex> readIndex();
    std::optional<EncryptedIndex> decryptIndex() const;
    /// Whether an index that has this problem is one that is damaged, not encrypted or something
    /// else. Throws SourceError where that cannot be told.
    bool isOfDamage(SourceProblem problem) const;
    void noteDamagedIndex();
    void requireDatabase() const;
    void noteWhatIsMissing();
    void noteMissingMedia();

    FileUse &fileUse_;
    const FileTree &tree_;
    std::string folder_;
    BackupRecords records_;
    std::optional<BackupEncryption> encryption_;
    std::unique_ptr<Unlocking> unlocking_;           ///< of an encrypted backup
    std::optional<ClassKeys> keys_;                  ///< likewise, once it is open
    std::string indexName_;                          ///< empty when there is none
    std::optional<std::vector<std::string>> listed_; ///< in the index, if it could be read
    std::vector<SourceFinding> missing_;
    std::unique_ptr<BackupIndex> index_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_BACKUP_H
