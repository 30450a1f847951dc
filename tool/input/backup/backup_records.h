#ifndef IOSPHOTO_TOOL_BACKUP_RECORDS_H
#define IOSPHOTO_TOOL_BACKUP_RECORDS_H

#include "files/private_folder.h"
#include "input/library_layout.h"
#include "input/tree/file_tree.h"
#include "session/session.h"

#include <optional>
#include <string>
#include <vector>

namespace iosphoto::tool {

constexpr const char *backupIndexNames[] = {"Manifest.db", "Manifest.mbdb"};
constexpr const char *backupInfo = "Info.plist";
constexpr const char *backupManifest = "Manifest.plist";
constexpr const char *backupStatus = "Status.plist";
constexpr const char *backupPropertyLists[] = {backupInfo, backupManifest, backupStatus};

/// The property lists of a backup and its index, copied, and what the lists say. An encrypted
/// backup has them too.
class BackupRecords
{
public:
    enum class Extent { Lists, ListsAndIndex };

    /// Throws when one cannot be copied.
    BackupRecords(Session &session, const FileTree &tree, std::string folder, Extent extent);

    const std::optional<RecordedDevice> &device() const { return device_; }
    const DeviceIdentity &identity() const { return identity_; }
    const std::optional<UnixTime> &date() const { return date_; }
    /// Nothing where no list says.
    std::optional<bool> isEncrypted() const { return isEncrypted_; }
    std::optional<bool> isFinished() const { return isFinished_; }
    /// Of an encrypted backup: what its keys, and that of its index, are wrapped in. Nothing where
    /// no list has them.
    const std::optional<std::string> &keyBag() const { return keyBag_; }
    const std::optional<std::string> &indexKey() const { return indexKey_; }
    bool isManifestDamaged() const { return isManifestDamaged_; }
    /// Lists that cannot be read, and that the backup is not finished.
    const std::vector<SourceFinding> &findings() const { return findings_; }

    /// The files that say all this, as paths in the tree.
    std::vector<std::string> files() const;
    bool has(const std::string &name) const;
    std::string shown(const std::string &name) const;
    std::filesystem::path copyOf(const std::string &name) const { return copies_ / name; }

private:
    void copy(FileUse &fileUse) const;
    void read();
    void readStatus();

    const FileTree &tree_;
    std::string folder_;
    std::vector<std::string> names_;
    PrivateFolder copies_;
    std::optional<RecordedDevice> device_;
    DeviceIdentity identity_;
    std::optional<UnixTime> date_;
    std::optional<bool> isEncrypted_;
    std::optional<bool> isFinished_;
    std::optional<std::string> keyBag_;
    std::optional<std::string> indexKey_;
    bool isManifestDamaged_ = false;
    std::vector<SourceFinding> findings_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_BACKUP_RECORDS_H
