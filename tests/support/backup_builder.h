#ifndef IOSPHOTO_TESTS_BACKUP_BUILDER_H
#define IOSPHOTO_TESTS_BACKUP_BUILDER_H

#include "support/backup_encryption.h"
#include "support/library_builder.h"

#include <cstdint>
#include <filesystem>
#include <map>
#include <set>
#include <string>

namespace iosphoto::test {

/// Where a photo library is below Media.
constexpr const char *mediaDatabase = "PhotoData/Photos.sqlite";
constexpr const char *mediaLog = "PhotoData/Photos.sqlite-wal";

enum class BackupIndexKind { Db, Mbdb, None };

struct BackupOptions
{
    BackupIndexKind index = BackupIndexKind::Db;
    bool isEncrypted = false;
    EncryptionOptions encryption; ///< where it is
    bool hasBinaryInfo = false;
    std::string iosVersion = "17.4.1";
    std::string productType = "iPhone14,2";
    std::string buildVersion = "21E236";
    std::string deviceName = "Somebody's";
    std::string serialNumber = "F2LXK0ABCD";
    std::string snapshotState = "finished"; ///< of Status.plist; empty for none
    std::string backupState = "new";
    std::int64_t lastBackup = 1'700'000'000; // 2023-11-14 22:13:20 UTC
    /// Paths below Media that the index lists, but that are not stored.
    std::set<std::string> notStored;
    /// Paths below Media that are stored, but that the index does not list.
    std::set<std::string> notListed;
};

/// Builds what iTunes or Finder makes of a phone.
class BackupBuilder
{
public:
    explicit BackupBuilder(std::filesystem::path folder, BackupOptions options = {});

    /// Adds a file of the phone by its path below Media.
    BackupBuilder &add(const std::string &mediaPath, const std::string &content);
    /// Adds the database, and its log if there is one.
    BackupBuilder &add(const LibraryBuilder &library);
    /// Writes the index and the property lists.
    void finish() const;

    /// The file on disk for a path below Media.
    std::filesystem::path stored(const std::string &mediaPath) const;
    const std::filesystem::path &folder() const { return folder_; }

private:
    std::map<std::string, std::size_t> listed() const; ///< with their sizes
    std::string asStored(const std::string &mediaPath, const std::string &content) const;
    void writeDb() const;
    void writeMbdb() const;
    void writeLists() const;
    std::string keys() const; ///< lines of Manifest.plist

    std::filesystem::path folder_;
    BackupOptions options_;
    BackupEncryption encryption_;
    std::map<std::string, std::size_t> sizes_; ///< by the paths below Media
};

/// The same in one go. Returns the folder.
std::filesystem::path writeBackup(const std::filesystem::path &folder,
                                  const LibraryBuilder &library, const BackupOptions &options = {});

/// A property list: XML with these lines inside its dictionary, or the same as binary.
std::string propertyList(const std::string &xmlLines, bool isBinary = false);

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_BACKUP_BUILDER_H
