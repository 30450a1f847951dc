#include "files/owner_lock.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#ifdef __APPLE__
#include <sys/mount.h>
#else
#include <sys/vfs.h>
#endif

namespace iosphoto::tool {

Descriptor::~Descriptor()
{
    if (number_ >= 0)
        close(number_);
}

bool lockAsOwner(int file)
{
    return flock(file, LOCK_EX | LOCK_NB) == 0;
}

bool isOnOwnDisk(int file)
{
    struct statfs disk = {};
    if (fstatfs(file, &disk) != 0)
        return false;
#ifdef __APPLE__
    return (disk.f_flags & MNT_LOCAL) != 0;
#else
    constexpr std::uint32_t ext = 0xef53;
    constexpr std::uint32_t xfs = 0x58465342;
    constexpr std::uint32_t btrfs = 0x9123683e;
    constexpr std::uint32_t f2fs = 0xf2f52010;
    constexpr std::uint32_t zfs = 0x2fc12fc1;
    constexpr std::uint32_t bcachefs = 0xca451a4e;
    constexpr std::uint32_t tmpfs = 0x01021994;
    constexpr std::uint32_t overlay = 0x794c7630;
    constexpr std::uint32_t own[] = {ext, xfs, btrfs, f2fs, zfs, bcachefs, tmpfs, overlay};
    const auto type = static_cast<std::uint32_t>(disk.f_type);
    return std::find(std::begin(own), std::end(own), type) != std::end(own);
#endif
}

bool isOurs(int file, mode_t kind)
{
    struct stat facts = {};
    return fstat(file, &facts) == 0 && (facts.st_mode & S_IFMT) == kind &&
           facts.st_uid == geteuid();
}

} // namespace iosphoto::tool
