#include "support/network_disk.h"

#include "support/next_call.h"

namespace {

bool isInUse = false;

} // namespace

#ifdef __linux__

#include <linux/magic.h>
#include <sys/vfs.h>

namespace {

constexpr bool callsAreReplaced = true;

} // namespace

// In place of the system's, as the program's own come first.
extern "C" __attribute__((visibility("default"))) int fstatfs(int file,
                                                              struct statfs *disk) noexcept
{
    const int result = iosphoto::test::nextCall<int(int, struct statfs *)>("fstatfs")(file, disk);
    if (isInUse)
        disk->f_type = NFS_SUPER_MAGIC;
    return result;
}

#else

namespace {

constexpr bool callsAreReplaced = false;

} // namespace

#endif

namespace iosphoto::test {

NetworkDisk::NetworkDisk()
{
    isInUse = true;
}

NetworkDisk::~NetworkDisk()
{
    isInUse = false;
}

bool NetworkDisk::isPossible()
{
    return callsAreReplaced;
}

} // namespace iosphoto::test
