#ifndef IOSPHOTO_TOOL_FILE_STAMP_H
#define IOSPHOTO_TOOL_FILE_STAMP_H

#include <cstdint>
#include <ctime>
#include <filesystem>
#include <sys/stat.h>

namespace iosphoto::tool {

/// When the content of a file was last changed.
timespec modifiedAt(const struct stat &facts);

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

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_FILE_STAMP_H
