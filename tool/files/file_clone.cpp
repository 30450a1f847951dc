#include "files/file_clone.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#if defined(__APPLE__)
#include <sys/clonefile.h>
#elif defined(__linux__)
#include <linux/fs.h>
#include <sys/ioctl.h>
#endif

namespace iosphoto::tool {

#if defined(__APPLE__)

bool cloneFile(int from, const std::filesystem::path &to)
{
    return fclonefileat(from, AT_FDCWD, to.c_str(), 0) == 0 &&
           chmod(to.c_str(), S_IRUSR | S_IWUSR) == 0;
}

#elif defined(FICLONE)

bool cloneFile(int from, const std::filesystem::path &to)
{
    const int clone = open(to.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (clone < 0)
        return false;
    const bool isCloned = ioctl(clone, FICLONE, from) == 0;
    close(clone);
    if (!isCloned)
        unlink(to.c_str());
    return isCloned;
}

#else

bool cloneFile(int /*from*/, const std::filesystem::path & /*to*/)
{
    return false;
}

#endif

} // namespace iosphoto::tool
