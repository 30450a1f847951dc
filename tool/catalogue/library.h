#ifndef IOSPHOTO_TOOL_LIBRARY_H
#define IOSPHOTO_TOOL_LIBRARY_H

#include "catalogue/account.h"
#include "catalogue/known_dates.h"
#include "catalogue/snapshot_age.h"
#include "catalogue/trash.h"
#include "catalogue/without_log.h"
#include "ios_photo.h"
#include "ios_photo_report.h"
#include "records/owned_catalogue.h"
#include "schema/opened_copy.h"
#include "session/session.h"
#include "time/epochs.h"

#include <exception>
#include <optional>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// The moment that a library is read as of.
struct Moment
{
    UnixTime time;
    std::string why; ///< such as "Last Backup Date"; empty if the user named it
    std::string assumedZone =
        {}; ///< that its time is taken to be in, where nothing says; mostly empty
};

/// Which library to read, and as what.
struct LibraryRequest
{
    std::string source;
    Device device;              ///< as far as the user named it
    std::optional<Moment> asOf; ///< by default the source's own time
    bool comparesLog = false;   ///< whether to read it without its write-ahead log too
    bool keepsLeftOut = false;  ///< whether to read the photos that the catalogue leaves out
    /// Whether it is one of two that are compared: then the trash leaves nothing out, and how late
    /// it is of is found out.
    bool isCompared = false;
};

/// The time that a source is of: when the backup was made, else when it last changed.
Moment ownTimeOf(const Source &source);

/// That no photo of a library could be read.
class NothingRead : public std::exception
{
public:
    NothingRead(std::string database, int code) : database_(std::move(database)), code_(code) {}

    const std::string &database() const { return database_; }
    int code() const { return code_; } ///< of SQLite, extended
    const char *what() const noexcept override { return "no photo could be read"; }

private:
    std::string database_;
    int code_;
};

/// A photo library that was read, with the records of its catalogue.
class Library
{
public:
    /// Reads the database through a private copy, which is gone when this returns. Throws when the
    /// library cannot be read: NothingRead, and what Source and OpenedCopy throw.
    Library(Session &session, const LibraryRequest &request);
    /// The same of a source that was opened before.
    Library(Session &session, const LibraryRequest &request, const Source &source);

    const std::string &name() const { return request_.source; } ///< as the user named it
    const std::string &database() const { return database_; }   ///< that was found there
    SourceKind kind() const { return kind_; }
    bool isArchive() const { return isArchive_; }
    bool isBareStream() const { return isBareStream_; }
    const DeviceIdentity &identity() const { return identity_; }
    /// Of an encrypted backup.
    const std::optional<BackupEncryption> &encryption() const { return encryption_; }
    const Device &device() const { return schema_.device; }
    const ProbedSchema &schema() const { return schema_; }
    const std::vector<CAlbumGroup> &albums() const { return catalogue_.albums; }
    const Moment &asOf() const { return asOf_; }
    const Trash &trash() const { return trash_; }

    /// The dates of its photos, which their records do not tell for sure.
    const KnownDates &dates() const { return dates_; }
    /// Nothing where the rows could not be counted, which uncounted() says then.
    const std::optional<Account> &account() const { return account_; }
    const std::string &uncounted() const { return uncounted_; }
    /// How many rows of photos and albums damage or the end of the reading kept away.
    std::int64_t unreadRows() const;
    /// How many assets were in the trash for too long; unless it is compared they are left out.
    std::int64_t leftOutOfTrash() const;
    /// If the request said so, or withoutLog() is there to be compared with.
    const LeftOutPhotos &leftOutPhotos() const { return leftOutPhotos_; }

    const WriteAheadLog &log() const { return log_; }
    /// The library without its log, if the request said so and the log holds anything.
    const std::optional<WithoutLog> &withoutLog() const { return withoutLog_; }
    const SnapshotAge &age() const { return age_; } ///< if it is compared

    /// What of the source is missing.
    const std::vector<SourceFinding> &missing() const { return missing_; }
    /// What else was met in the search for it.
    const std::vector<PassedOverNames> &passedOver() const { return passedOver_; }
    /// How far the database was read.
    const CReadReport &report() const { return report_; }
    /// The most rows that a pass was to read.
    std::int64_t rowLimit() const { return rowLimit_; }
    /// Whether nothing is missing from what was read.
    bool isComplete() const
    {
        return missing_.empty() && report_.firstStopped() == nullptr && uncounted_.empty() &&
               unreadRows() == 0 && schema_.gaps.empty();
    }

private:
    void inspect(const OpenedCopy &copy);
    void read(const Session &session, const OpenedCopy &copy);
    void accountFor(const OpenedCopy &copy);

    LibraryRequest request_;
    std::string database_;
    SourceKind kind_ = SourceKind::Database;
    bool isArchive_ = false;
    bool isBareStream_ = false;
    DeviceIdentity identity_;
    std::optional<BackupEncryption> encryption_;
    ProbedSchema schema_;
    Moment asOf_ = {};
    Trash trash_;
    WriteAheadLog log_;
    SnapshotAge age_;
    std::optional<WithoutLog> withoutLog_;
    OwnedCatalogue catalogue_;
    KnownDates dates_;
    std::optional<Account> account_;
    std::string uncounted_;
    LeftOutPhotos leftOutPhotos_;
    std::vector<SourceFinding> missing_;
    std::vector<PassedOverNames> passedOver_;
    CReadReport report_;
    std::int64_t rowLimit_ = 0;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_LIBRARY_H
