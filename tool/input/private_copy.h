#ifndef IOSPHOTO_TOOL_PRIVATE_COPY_H
#define IOSPHOTO_TOOL_PRIVATE_COPY_H

#include "files/private_folder.h"
#include "input/source.h"
#include "session/session.h"
#include "sqlite/write_ahead_log.h"

#include <string>

namespace iosphoto::tool {

/// A copy of a source's database with its write-ahead log and journal, which goes with the object.
/// So the original is never opened for writing.
class PrivateCopy
{
public:
    /// Throws when something cannot be read or copied.
    PrivateCopy(Session &session, const Source &source);

    std::string database() const { return (folder_ / Source::databaseFile).string(); }

    /// What the copy lacks, though the source has it.
    const std::vector<SourceFinding> &missing() const { return missing_; }

    /// The write-ahead log that came with it.
    const WriteAheadLog &log() const { return log_; }

    /// Leaves the database as it is without its log.
    void removeLog() const;

private:
    PrivateFolder folder_;
    std::vector<SourceFinding> missing_;
    WriteAheadLog log_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PRIVATE_COPY_H
