#include "process/interruption_lock.h"

namespace iosphoto::tool {

namespace {

// Recursive, as the interruption itself says something.
std::recursive_mutex &mutex()
{
    static std::recursive_mutex theOne;
    return theOne;
}

} // namespace

InterruptionLock::InterruptionLock() : lock_(mutex()) {}

void stopIfInterrupted()
{
    const InterruptionLock lock;
}

} // namespace iosphoto::tool
