#ifndef IOSPHOTO_TOOL_PROGRESS_BAR_H
#define IOSPHOTO_TOOL_PROGRESS_BAR_H

#include "terminal/status_line.h"

#include <chrono>
#include <string>

namespace iosphoto::tool {

/// A line of at most `columns` columns, such as "writing thumbnails [####    ] 20/40"; only the
/// numbers where there is no room.
std::string progressLine(const std::string &doing, int done, int total, std::size_t columns);

/// How far a command is: a passing line, where it takes long.
class ProgressBar
{
public:
    using Clock = std::chrono::steady_clock;

    /// @param doing     such as "writing thumbnails"
    /// @param patience  how long the command may take before anything is shown
    ProgressBar(const Terminal &terminal, std::string doing, int total,
                Clock::duration patience = std::chrono::milliseconds(500));

    /// Says that `done` of the total are done.
    void show(int done);

private:
    std::string doing_;
    int total_;
    StatusLine line_;
    Clock::time_point nextShow_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PROGRESS_BAR_H
