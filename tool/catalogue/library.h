#ifndef IOSPHOTO_TOOL_LIBRARY_H
#define IOSPHOTO_TOOL_LIBRARY_H

#include "catalogue/log_changes.h"
#include "catalogue/trash.h"
#include "ios_photo.h"
#include "process/exit_status.h"
#include "records/owned_catalogue.h"
#include "schema/opened_copy.h"
#include "time/time_text.h"

#include <optional>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// Which library to read, and as what.
struct LibraryRequest
{
    std::string source;
    Device device;              ///< as far as the user named it
    std::optional<Moment> asOf; ///< by default the source's own time
    bool comparesLog = false;   ///< whether to find out what the write-ahead log holds
};

/// The time that a source is of: when the backup was made, else when it last changed.
Moment ownTimeOf(const Source &source);

/// A photo library that was read, with the records of its catalogue.
class Library
{
public:
    /// Reads the database through a private copy, which is gone when this returns. Throws Failure
    /// when the library cannot be read.
    explicit Library(const LibraryRequest &request);
    /// The same of a source that was opened before.
    Library(const LibraryRequest &request, const Source &source);

    const std::string &name() const { return request_.source; } ///< as the user named it
    const std::string &database() const { return database_; }   ///< that was found there
    SourceKind kind() const { return kind_; }
    bool isArchive() const { return isArchive_; }
    const Device &device() const { return schema_.device; }
    const ProbedSchema &schema() const { return schema_; }
    const std::vector<CAlbumGroup> &albums() const { return catalogue_.albums; }
    const Moment &asOf() const { return asOf_; }
    const Trash &trash() const { return trash_; }

    /// How many assets are left out since they were in the trash for too long.
    int leftOut() const { return leftOut_; }

    /// Whether there is a write-ahead log, and if the request said so what it changes.
    bool hasLog() const { return hasLog_; }
    const std::vector<LogChange> &logChanges() const { return logChanges_; }

    /// Good, or Incomplete when something is missing from what was read.
    ExitStatus status() const { return missing_.empty() ? Good : Incomplete; }

    /// Says on stderr in one line what was assumed and what is left out, and in others what does
    /// not agree and what is missing.
    /// @param label  put before each line where there are several libraries, such as "A: "
    void sayHowItWasRead(const std::string &label = {}) const;

private:
    void inspect(const OpenedCopy &copy);
    void read(const OpenedCopy &copy);
    std::string assumptions() const;

    LibraryRequest request_;
    std::string database_;
    SourceKind kind_ = SourceKind::Database;
    bool isArchive_ = false;
    ProbedSchema schema_;
    Moment asOf_ = {};
    Trash trash_;
    bool hasLog_ = false;
    std::vector<LogChange> logChanges_;
    OwnedCatalogue catalogue_;
    int leftOut_ = 0;
    std::vector<std::string> missing_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_LIBRARY_H
