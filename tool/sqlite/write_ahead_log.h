#ifndef IOSPHOTO_TOOL_WRITE_AHEAD_LOG_H
#define IOSPHOTO_TOOL_WRITE_AHEAD_LOG_H

#include <filesystem>

namespace iosphoto::tool {

/// Whether a file is the write-ahead log of a database, as far as its header and its first frame
/// tell. SQLite itself passes over a damaged one without a word.
bool isWriteAheadLog(const std::filesystem::path &file);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_WRITE_AHEAD_LOG_H
