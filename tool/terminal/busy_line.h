#ifndef IOSPHOTO_TOOL_BUSY_LINE_H
#define IOSPHOTO_TOOL_BUSY_LINE_H

#include "terminal/status_line.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

namespace iosphoto::tool {

/// While it lives, a line such as "reading photos ... 3 s" on stderr says that a single long call
/// still runs: on a terminal, after some patience.
class BusyLine
{
public:
    using Duration = std::chrono::milliseconds;

    /// @param doing  such as "reading photos"
    explicit BusyLine(const Terminal &terminal, std::string doing,
                      Duration patience = Duration(500));
    ~BusyLine();
    BusyLine(const BusyLine &) = delete;
    BusyLine &operator=(const BusyLine &) = delete;

private:
    void keepShowing(Duration patience);

    std::string doing_;
    StatusLine line_;
    std::mutex mutex_;
    std::condition_variable ended_;
    bool isEnded_ = false;
    std::thread thread_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_BUSY_LINE_H
