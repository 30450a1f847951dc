#include "support/cloning_disk.h"

#include "support/next_call.h"

#include <optional>

namespace {

struct Clones
{
    int error;
    int count;
};

std::optional<Clones> clones;

} // namespace

#ifdef __linux__

#include <array>
#include <cerrno>
#include <cstdarg>
#include <cstdint>
#include <linux/fs.h>
#include <unistd.h>

namespace {

constexpr bool callsAreReplaced = true;

int playClone(int to, int from)
{
    ++clones->count;
    if (clones->error != 0) {
        errno = clones->error;
        return -1;
    }
    std::array<char, 4096> piece = {};
    off_t at = 0;
    for (ssize_t size = 0; (size = pread(from, piece.data(), piece.size(), at)) > 0; at += size)
        if (pwrite(to, piece.data(), static_cast<std::size_t>(size), at) != size)
            return -1;
    return 0;
}

} // namespace

// In place of the system's, as the program's own come first.
extern "C" __attribute__((visibility("default"))) int ioctl(int descriptor, unsigned long request,
                                                            ...) noexcept
{
    va_list arguments;
    va_start(arguments, request);
    void *const argument = va_arg(arguments, void *);
    va_end(arguments);
    if (clones && request == FICLONE)
        return playClone(descriptor, static_cast<int>(reinterpret_cast<std::intptr_t>(argument)));
    using Function = int(int, unsigned long, ...);
    return iosphoto::test::nextCall<Function>("ioctl")(descriptor, request, argument);
}

#else

namespace {

constexpr bool callsAreReplaced = false;

} // namespace

#endif

namespace iosphoto::test {

CloningDisk::CloningDisk(int error)
{
    clones = {error, 0};
}

CloningDisk::~CloningDisk()
{
    clones.reset();
}

int CloningDisk::count() const
{
    return clones->count;
}

bool CloningDisk::isPossible()
{
    return callsAreReplaced;
}

} // namespace iosphoto::test
