#include "time/epochs.h"

#include "model/core_data_time.h"

namespace iosphoto::tool {

std::optional<UnixTime> unixTimeOf(CoreDataTime time)
{
    constexpr double years = 366.0 * secondsPerDay;
    if (!(time.seconds > -9999 * years && time.seconds < 9999 * years))
        return std::nullopt;
    const UnixTime unixTime = {wholeSeconds(time.seconds) + coreDataEpoch};
    return isOfTheCalendar(unixTime) ? std::optional(unixTime) : std::nullopt;
}

bool isOfTheCalendar(UnixTime time)
{
    constexpr UnixTime firstSecond = {-62135596800}; // 0001-01-01 00:00:00
    constexpr UnixTime lastSecond = {253402300799};  // 9999-12-31 23:59:59
    return !(time < firstSecond) && !(lastSecond < time);
}

bool isOfTheCalendar(CoreDataTime time)
{
    return unixTimeOf(time).has_value();
}

} // namespace iosphoto::tool
