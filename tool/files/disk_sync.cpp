#include "files/disk_sync.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace iosphoto::tool {

namespace fs = std::filesystem;

namespace {

bool sync(int descriptor)
{
#ifdef F_FULLFSYNC // fsync() alone leaves it in the memory of the disk there
    if (fcntl(descriptor, F_FULLFSYNC) == 0)
        return true;
#endif
    int result = 0;
    do
        result = fsync(descriptor);
    while (result != 0 && errno == EINTR);
    return result == 0;
}

/// Others, such as EINVAL, say that the file system does not do such a thing.
bool isLoss(int error)
{
    return error == EIO || error == ENOSPC || error == EDQUOT;
}

std::error_code lossOf(int error)
{
    return isLoss(error) ? std::error_code(error, std::system_category()) : std::error_code();
}

} // namespace

std::error_code syncFile(int descriptor)
{
    return sync(descriptor) ? std::error_code() : lossOf(errno);
}

std::error_code syncFolder(const fs::path &folder)
{
    const char *const name = folder.empty() ? "." : folder.c_str();
    const int descriptor = open(name, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) // as of a folder that may be written to and not read
        return lossOf(errno);
    const std::error_code loss = syncFile(descriptor);
    close(descriptor);
    return loss;
}

} // namespace iosphoto::tool
