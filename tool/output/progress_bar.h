#ifndef IOSPHOTO_TOOL_PROGRESS_BAR_H
#define IOSPHOTO_TOOL_PROGRESS_BAR_H

#include <chrono>
#include <string>

namespace iosphoto::tool {

/// A line of at most `columns` - 1 columns, such as "writing thumbnails [####    ] 20/40"; only the
/// numbers where there is no room.
std::string progressLine(const std::string &doing, int done, int total, std::size_t columns);

/// How far a command is, on stderr. Shown only on a terminal, from half a second on; its line is
/// cleared when it goes.
class ProgressBar
{
public:
    /// @param doing  such as "writing thumbnails"
    ProgressBar(std::string doing, int total);
    ~ProgressBar();
    ProgressBar(const ProgressBar &) = delete;
    ProgressBar &operator=(const ProgressBar &) = delete;

    /// Says that `done` of the total are done.
    void show(int done);

private:
    using Clock = std::chrono::steady_clock;

    std::string doing_;
    int total_;
    bool isOnTerminal_;
    bool isShown_ = false;
    Clock::time_point nextShow_;
};

/// Clears the line where a bar may stand, for something else to be said.
void clearProgress();

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PROGRESS_BAR_H
