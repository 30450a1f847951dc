#include "files/file_stamp.h"

#include <tuple>

namespace iosphoto::tool {

namespace {

/// When the facts about a file were last changed.
timespec changedAt(const struct stat &facts)
{
#ifdef __APPLE__
    return facts.st_ctimespec;
#else
    return facts.st_ctim;
#endif
}

std::int64_t nanoseconds(const timespec &time)
{
    constexpr std::uint64_t perSecond = 1'000'000'000;
    // Wraps beyond the year 2262, which does not matter where times are only compared.
    return static_cast<std::int64_t>(static_cast<std::uint64_t>(time.tv_sec) * perSecond +
                                     static_cast<std::uint64_t>(time.tv_nsec));
}

} // namespace

timespec modifiedAt(const struct stat &facts)
{
#ifdef __APPLE__
    return facts.st_mtimespec;
#else
    return facts.st_mtim;
#endif
}

FileStamp::FileStamp(const std::filesystem::path &file)
{
    struct stat facts = {};
    if (stat(file.c_str(), &facts) != 0)
        return;
    exists = true;
    device = facts.st_dev;
    inode = facts.st_ino;
    size = facts.st_size;
    modified = nanoseconds(modifiedAt(facts));
    changed = nanoseconds(changedAt(facts));
}

bool FileStamp::operator==(const FileStamp &other) const
{
    const auto all = [](const FileStamp &stamp) {
        return std::tie(stamp.exists, stamp.device, stamp.inode, stamp.size, stamp.modified,
                        stamp.changed);
    };
    return all(*this) == all(other);
}

} // namespace iosphoto::tool
