#ifndef IOSPHOTO_TOOL_LIBRARY_LAYOUT_H
#define IOSPHOTO_TOOL_LIBRARY_LAYOUT_H

#include "input/source_problem.h"
#include "time/epochs.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// The device that a source comes from, in the source's own words. What it does not say is empty.
struct RecordedDevice
{
    std::string iosVersion;   ///< such as "17.4.1"
    std::string productType;  ///< such as "iPhone14,2"
    std::string buildVersion; ///< such as "21E236"
    std::string recordedIn;   ///< the file that says so, such as "Info.plist"
};

/// What tells a device from others of its model: it identifies a person. What is not known is
/// empty.
struct DeviceIdentity
{
    std::string name; ///< that its owner gave it
    std::string serialNumber;
};

/// How a backup is encrypted.
struct BackupEncryption
{
    std::uint64_t rounds; ///< that make its key of the password
    /// The protection classes whose keys never leave the device, so that no password opens them.
    std::set<std::uint32_t> classesOfDevice;
};

enum class SourceKind { Database, MediaFolder, Backup };

/// The kind's name for machines.
constexpr const char *machineName(SourceKind kind)
{
    switch (kind) {
    case SourceKind::MediaFolder:
        return "media-folder";
    case SourceKind::Backup:
        return "backup";
    default:
        return "database";
    }
}

/// Where the database lies below Media.
constexpr const char *databaseBelowMedia = "PhotoData/Photos.sqlite";

/// Where in a tree the files of a photo library lie.
class LibraryLayout
{
public:
    LibraryLayout() = default;
    virtual ~LibraryLayout() = default;
    LibraryLayout(const LibraryLayout &) = delete;
    LibraryLayout &operator=(const LibraryLayout &) = delete;

    virtual SourceKind kind() const = 0;

    /// Reads what takes long. To be called first; only kind() and device() may be asked before.
    virtual void open() {}

    /// The path in the tree of a file that has this path below Media. Nothing where the layout has
    /// no place for it; the file itself may be missing all the same.
    virtual std::optional<std::string> locate(const std::string &mediaPath) const = 0;

    /// Makes a copy of such a file what it was on the phone, where it was kept otherwise. One of
    /// which that cannot be done is removed. Says what is missing of it.
    virtual std::optional<SourceFinding> decrypt(const std::string & /*mediaPath*/,
                                                 const std::filesystem::path & /*copy*/) const
    {
        return std::nullopt;
    }

    virtual std::optional<RecordedDevice> device() const { return std::nullopt; }
    virtual DeviceIdentity identity() const { return {}; }
    virtual std::optional<UnixTime> backupDate() const { return std::nullopt; }
    virtual std::optional<BackupEncryption> encryption() const { return std::nullopt; }

    /// What should be there and is not; mostly nothing.
    virtual std::vector<SourceFinding> missing() const { return {}; }

    /// The files, beside those of the library, that say all this.
    virtual std::vector<std::string> records() const { return {}; }
};

/// A database with its log beside it; nothing else.
class LoneDatabase : public LibraryLayout
{
public:
    explicit LoneDatabase(std::string path) : path_(std::move(path)) {}

    SourceKind kind() const override { return SourceKind::Database; }
    std::optional<std::string> locate(const std::string &mediaPath) const override;

private:
    std::string path_;
};

/// A folder that is /var/mobile/Media on the phone.
class MediaFolder : public LibraryLayout
{
public:
    explicit MediaFolder(std::string folder) : folder_(std::move(folder)) {}

    SourceKind kind() const override { return SourceKind::MediaFolder; }
    std::optional<std::string> locate(const std::string &mediaPath) const override;

private:
    std::string folder_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_LIBRARY_LAYOUT_H
