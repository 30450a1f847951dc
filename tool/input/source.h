#ifndef IOSPHOTO_TOOL_SOURCE_H
#define IOSPHOTO_TOOL_SOURCE_H

#include "input/library_layout.h"
#include "input/passed_over.h"
#include "input/place.h"
#include "input/tree/file_tree.h"
#include "session/session.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// A photo library as a person has it: the database, the media folder of a phone, a backup, or an
/// archive of one of them. Nothing in it is ever changed.
class Source
{
public:
    /// The name of the database in copyDatabaseTo().
    static constexpr const char *databaseFile = "Photos.sqlite";

    enum class Opening { AtOnce, Later };

    /// Finds out what it is. Throws when that is nothing to read a library from.
    /// @param opening  later, to have what takes long in the background for a while
    /// @{
    Source(Session &session, const std::string &name, Opening opening = Opening::AtOnce);
    Source(Session &session, Place place, Opening opening = Opening::AtOnce);
    /// @}

    /// To be called once, and before all below, when that was to be done later. Throws likewise.
    void open();

    /// As the user named it.
    const std::string &name() const { return place_.name; }
    SourceKind kind() const { return layout_->kind(); }
    bool isArchive() const { return tree().isArchive(); }
    /// Whether it is a database that came through standard input: alone, and without a time.
    bool isBareStream() const { return place_.input != nullptr && !isArchive(); }

    /// The device that the source says it comes from.
    std::optional<RecordedDevice> device() const { return layout_->device(); }
    DeviceIdentity identity() const { return layout_->identity(); }
    std::optional<BackupEncryption> encryption() const { return layout_->encryption(); }
    std::optional<UnixTime> backupDate() const { return layout_->backupDate(); }

    /// The database as messages name it; in an archive its path there follows that of the archive.
    const std::string &databaseName() const { return databaseName_; }
    /// When the database or its log was last written.
    UnixTime lastChange() const;
    /// Whether that is the local time of an archive without time zones.
    bool isLastChangeWithoutZone() const;
    /// What should be there and is not, and where nobody looked; mostly nothing.
    std::vector<SourceFinding> missing() const;
    /// What else was met in the search for the library.
    const std::vector<PassedOverNames> &passedOver() const { return passedOver_; }
    /// The files on disk that are read to read the library, or would be if they were there, as a
    /// write-ahead log; for an archive the archive.
    std::vector<std::filesystem::path> inputs() const;

    /// Tells that these are read, and keeps outputs away from the source.
    void announceReading(FileUse &fileUse) const;

    /// Puts the database there, with the write-ahead log and journal that belong to it. Throws
    /// when one cannot be read, or changes all the time. Says what is missing of them.
    std::vector<SourceFinding> copyDatabaseTo(const std::filesystem::path &folder) const;

    /// A file by its path below Media, such as "DCIM/100APPLE/IMG_0001.JPG"; nothing when the
    /// source does not have it.
    std::optional<FileFacts> find(const std::string &mediaPath) const;

    /// Copies such files, all at once as an archive is read from its beginning each time. Those
    /// that are not there are passed over. Says what is missing of the others.
    std::vector<SourceFinding> copyOut(const std::vector<FileToCopy> &files) const;

private:
    const FileTree &tree() const { return *place_.tree; }
    std::optional<std::string> locate(const std::string &mediaPath) const;
    /// Database, log and journal, as far as the source has a place for them.
    std::vector<FileToCopy> databaseFiles() const;
    std::vector<SourceFinding> decryptDatabase(const std::filesystem::path &folder) const;

    Place place_;
    std::vector<SourceFinding> unsearched_;
    std::vector<PassedOverNames> passedOver_;
    std::unique_ptr<LibraryLayout> layout_;
    std::string databaseName_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_SOURCE_H
