#include "model/clock.h"

#include <QDateTime>

#include <atomic>

namespace iosphoto {

namespace {

constexpr std::int64_t running = -1;
std::atomic<std::int64_t> stoppedAt{running};

} // namespace

std::uint32_t currentUnixTime()
{
    const std::int64_t stopped = stoppedAt;
    return static_cast<std::uint32_t>(stopped != running ? stopped
                                                         : QDateTime::currentSecsSinceEpoch());
}

StoppedClock::StoppedClock(std::uint32_t unixTime)
{
    stoppedAt = unixTime;
}

StoppedClock::~StoppedClock()
{
    stoppedAt = running;
}

} // namespace iosphoto
