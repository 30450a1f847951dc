#ifndef IOSPHOTO_CLOCK_H
#define IOSPHOTO_CLOCK_H

#include <cstdint>

namespace iosphoto {

/// Seconds since 1970-01-01 00:00:00 UTC.
std::uint32_t currentUnixTime();

/// Stops the clock of the process while it lives, for tests.
class StoppedClock
{
public:
    explicit StoppedClock(std::uint32_t unixTime);
    ~StoppedClock();
    StoppedClock(const StoppedClock &) = delete;
    StoppedClock &operator=(const StoppedClock &) = delete;
};

} // namespace iosphoto

#endif // IOSPHOTO_CLOCK_H
