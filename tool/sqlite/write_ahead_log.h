#ifndef IOSPHOTO_TOOL_WRITE_AHEAD_LOG_H
#define IOSPHOTO_TOOL_WRITE_AHEAD_LOG_H

#include <cstdint>
#include <filesystem>

namespace iosphoto::tool {

enum class LogState {
    Missing, ///< there is no file
    Empty,   ///< of 0 bytes
    NoLog,   ///< the file is something else
    Damaged, ///< a change behind its commits cannot be read, or its end is cut off, or its header
    Good,
};

/// The state's name for machines, such as "no-log".
const char *machineName(LogState state);

/// What a file is that stands where the write-ahead log of a database belongs. SQLite itself
/// applies a log as far as it is good and passes over the rest without a word.
struct WriteAheadLog
{
    LogState state = LogState::Missing;
    std::int64_t commits = 0;     ///< that SQLite applies
    std::int64_t lostCommits = 0; ///< that are seen behind the first frame that is not good
    bool hasOpenChange = false;   ///< whether it ends in a change of which no commit is seen
    bool endsInZeros = false; ///< frames, or a part of one, that a copy may have been padded with
    std::int64_t frames = 0;  ///< whole or not, whatever they hold
    bool isHeaderDamaged = false; ///< so that SQLite applies no commit

    bool isApplied() const { return commits > 0; }
};

/// Walks all frames of a log, however many there are.
WriteAheadLog readWriteAheadLog(const std::filesystem::path &file);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_WRITE_AHEAD_LOG_H
