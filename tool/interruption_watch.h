#ifndef IOSPHOTO_TOOL_INTERRUPTION_WATCH_H
#define IOSPHOTO_TOOL_INTERRUPTION_WATCH_H

#include "terminal/terminal.h"

#include <thread>
#include <vector>

namespace iosphoto::tool {

/// While it lives, Ctrl-C, SIGTERM and a closed terminal end the process so that nothing half done
/// is left behind: temporary paths are removed, a line on stderr says so, and the exit status is
/// 128 and the number of the signal. A signal that is ignored, as nohup asks for, stays so.
///
/// To be made before any other thread, which would take the signals. They stay blocked afterwards.
class InterruptionWatch
{
public:
    /// @param terminal  has to outlive the watch
    explicit InterruptionWatch(const Terminal &terminal);
    /// Does not return where an interruption has begun.
    ~InterruptionWatch();
    InterruptionWatch(const InterruptionWatch &) = delete;
    InterruptionWatch &operator=(const InterruptionWatch &) = delete;

private:
    void waitForSignal() const;

    const Terminal &terminal_;
    std::vector<int> signals_;
    bool isOver_ = false; ///< guarded by InterruptionLock
    std::thread thread_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_INTERRUPTION_WATCH_H
