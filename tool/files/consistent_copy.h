#ifndef IOSPHOTO_TOOL_CONSISTENT_COPY_H
#define IOSPHOTO_TOOL_CONSISTENT_COPY_H

#include <filesystem>
#include <functional>
#include <vector>

namespace iosphoto::tool {

/// A file, and where the copy of it goes.
struct Copy
{
    std::filesystem::path from;
    std::filesystem::path to;
};

void waitUntilSettled();

/// Copies files that belong together, such as a database and its log, as they are at one moment.
/// Those that are not there are passed over; copies are for the owner only and keep the time of
/// their last change. Throws Failure when a file cannot be copied, or changes at each of some
/// tries.
/// @param wait  what is done when a file has changed just now
void copyConsistently(const std::vector<Copy> &files,
                      const std::function<void()> &wait = waitUntilSettled);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_CONSISTENT_COPY_H
