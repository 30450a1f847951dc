#ifndef IOSPHOTO_TOOL_CONSISTENT_COPY_H
#define IOSPHOTO_TOOL_CONSISTENT_COPY_H

#include <cstdint>
#include <filesystem>
#include <functional>
#include <vector>

namespace iosphoto::tool {

/// What tells that a file was changed, replaced, made or removed.
struct FileStamp
{
    explicit FileStamp(const std::filesystem::path &file);
    bool operator==(const FileStamp &other) const;

    bool exists = false;
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::int64_t size = 0;
    std::int64_t modified = 0; ///< nanoseconds since 1970
    std::int64_t changed = 0;  ///< the same, of the facts about the file
};

struct Copy
{
    std::filesystem::path from;
    std::filesystem::path to;
};

void waitUntilSettled();

/// Copies files that belong together, such as a database and its log, as they are at one moment.
/// Those that are not there are passed over; copies are for the owner only and keep the time of
/// their last change. Throws Failure when a file cannot be copied, or changes at each of some
/// tries.
/// @param wait  what is done when a file has changed just now
void copyConsistently(const std::vector<Copy> &files,
                      const std::function<void()> &wait = waitUntilSettled);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_CONSISTENT_COPY_H
