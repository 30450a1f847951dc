#ifndef IOSPHOTO_TOOL_LOG_CHANGES_H
#define IOSPHOTO_TOOL_LOG_CHANGES_H

#include "sqlite/copy_database.h"

#include <string>
#include <vector>

namespace iosphoto::tool {

/// What became of an asset in the write-ahead log.
enum class LogChangeKind { Added, Gone, Trashed, Restored };

/// The kind's name for machines, such as "added".
const char *machineName(LogChangeKind kind);

struct LogChange
{
    LogChangeKind kind;
    std::string uuid; ///< as the database has it; below iOS 8 in hexadecimal digits
    std::string path; ///< such as "DCIM/100APPLE/IMG_0001.HEIC"
};

/// What the write-ahead log of a database holds that the database alone does not: its assets are
/// compared with and without the log. Empty where the log changes none or is not there. Throws
/// Failure when the database alone cannot be read.
std::vector<LogChange> readLogChanges(const CopyDatabase &database);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_LOG_CHANGES_H
