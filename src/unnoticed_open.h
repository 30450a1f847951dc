#ifndef IOSPHOTO_UNNOTICED_OPEN_H
#define IOSPHOTO_UNNOTICED_OPEN_H

#include <cerrno>
#include <fcntl.h>

namespace iosphoto {

/// Opens as open(2) does, but so that reading leaves the time of the last access as it is, where
/// the system allows that.
inline int openUnnoticed(const char *path, int flags)
{
#ifdef O_NOATIME
    const int descriptor = open(path, flags | O_NOATIME);
    if (descriptor >= 0 || errno != EPERM) // which it is for the files of others
        return descriptor;
#endif
    return open(path, flags);
}

} // namespace iosphoto

#endif // IOSPHOTO_UNNOTICED_OPEN_H
