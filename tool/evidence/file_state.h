#ifndef IOSPHOTO_TOOL_FILE_STATE_H
#define IOSPHOTO_TOOL_FILE_STATE_H

#include "terminal/progress_bar.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// How far the hashing of files is, on stderr.
class HashingProgress
{
public:
    HashingProgress(const Terminal &terminal, const std::vector<std::filesystem::path> &files);

    /// Says that so many more bytes are hashed.
    void add(std::uint64_t bytes);

private:
    std::uint64_t done_ = 0;
    int total_; ///< MiB
    ProgressBar bar_;
};

/// What tells whether a file changed. Without any of it: no file is there.
struct FileState
{
    std::optional<std::uint64_t> size;
    std::optional<std::string> modified; ///< in UTC, with fractional seconds
    std::optional<std::string> sha256;

    bool operator==(const FileState &other) const
    {
        return size == other.size && modified == other.modified && sha256 == other.sha256;
    }
};

/// Reads a file to its end, a piece at a time. Throws Failure when it is there and cannot be read,
/// or becomes longer or shorter meanwhile.
FileState stateOf(const std::filesystem::path &file, HashingProgress &progress);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_FILE_STATE_H
