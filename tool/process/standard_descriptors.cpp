#include "process/standard_descriptors.h"

#include <cerrno>
#include <fcntl.h>
#include <initializer_list>
#include <unistd.h>

namespace iosphoto::tool {

void occupyStandardDescriptors()
{
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        const bool isClosed = fcntl(descriptor, F_GETFD) < 0 && errno == EBADF;
        // The system gives out the lowest that is free. Which way it is open is of no use to
        // anybody.
        const int useless = descriptor == STDIN_FILENO ? O_WRONLY : O_RDONLY;
        if (isClosed && open("/dev/null", useless) < 0)
            (void)open("/", O_RDONLY);
    }
}

} // namespace iosphoto::tool
