#include "terminal/busy_line.h"

#include "text/translate.h"

#include <algorithm>
#include <utility>

namespace iosphoto::tool {

BusyLine::BusyLine(const Terminal &terminal, std::string doing, Duration patience)
    : doing_(std::move(doing)), line_(terminal)
{
    if (line_.isSeen())
        thread_ = std::thread([this, patience] { keepShowing(patience); });
}

BusyLine::~BusyLine()
{
    if (!thread_.joinable())
        return;
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        isEnded_ = true;
    }
    ended_.notify_one();
    thread_.join();
}

void BusyLine::keepShowing(Duration patience)
{
    using Clock = std::chrono::steady_clock;
    using std::chrono::seconds;
    const Clock::time_point start = Clock::now();
    Clock::time_point next = start + patience;
    std::unique_lock<std::mutex> lock(mutex_);
    while (!ended_.wait_until(lock, next, [this] { return isEnded_; })) {
        const auto passed = std::chrono::floor<seconds>(Clock::now() - start);
        const seconds shown = std::max(passed, seconds(1)); // as 0 s would look like nothing done
        line_.show(translate("{0} ... {1} s", doing_, shown.count()));
        next = start + shown + seconds(1);
    }
}

} // namespace iosphoto::tool
