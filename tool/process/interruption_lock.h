#ifndef IOSPHOTO_TOOL_INTERRUPTION_LOCK_H
#define IOSPHOTO_TOOL_INTERRUPTION_LOCK_H

#include <mutex>

namespace iosphoto::tool {

/// While it lives, an interruption waits: while files are made that it would have to remove, and
/// while something is said. Once one has begun to end the command, making this never returns; so
/// what looks like an error because files were taken away is not said.
class InterruptionLock
{
public:
    InterruptionLock();

private:
    std::unique_lock<std::recursive_mutex> lock_;
};

/// Does not return once an interruption has begun. For what may take so long that it must not wait.
void stopIfInterrupted();

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_INTERRUPTION_LOCK_H
