#ifndef IOSPHOTO_TOOL_PRIVATE_COPY_H
#define IOSPHOTO_TOOL_PRIVATE_COPY_H

#include "files/private_folder.h"
#include "input/source.h"
#include "session/session.h"

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

    /// Whether a write-ahead log that is not empty came with it.
    bool hasLog() const;

    /// Whether that log is one, as far as its beginning tells.
    bool hasReadableLog() const;

private:
    std::string log() const { return database() + "-wal"; }

    PrivateFolder folder_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PRIVATE_COPY_H
