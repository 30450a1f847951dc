#ifndef IOSPHOTO_TOOL_STAT_TIMES_H
#define IOSPHOTO_TOOL_STAT_TIMES_H

#include <sys/stat.h>

namespace iosphoto::tool {

// The same members have other names on macOS.

/// When the content of a file was last changed.
inline timespec modifiedAt(const struct stat &facts)
{
#ifdef __APPLE__
    return facts.st_mtimespec;
#else
    return facts.st_mtim;
#endif
}

/// When the facts about it were.
inline timespec changedAt(const struct stat &facts)
{
#ifdef __APPLE__
    return facts.st_ctimespec;
#else
    return facts.st_ctim;
#endif
}

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_STAT_TIMES_H
