#ifndef IOSPHOTO_TOOL_INTERRUPTION_LOCK_H
#define IOSPHOTO_TOOL_INTERRUPTION_LOCK_H

#include <mutex>

namespace iosphoto::tool {

/// While it lives, an interruption waits. Once one has begun to end the command, making this never
/// returns.
class InterruptionLock
{
public:
    InterruptionLock();

private:
    std::unique_lock<std::recursive_mutex> lock_;
};

/// To be called before anything is said or shown: an interruption takes files away from the
/// command, and what looks like an error since then is none.
void stopIfInterrupted();

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_INTERRUPTION_LOCK_H
