#include "model/core_data_time.h"

#include <cmath>
#include <limits>

namespace iosphoto {

std::int64_t wholeSeconds(double seconds)
{
    constexpr double tooLarge = 9223372036854775808.0; // 2^63
    if (std::isnan(seconds))
        return 0;
    if (seconds >= tooLarge)
        return std::numeric_limits<std::int64_t>::max();
    if (seconds < -tooLarge)
        return std::numeric_limits<std::int64_t>::min();
    return static_cast<std::int64_t>(seconds);
}

QDateTime localTime(std::int64_t unixTime)
{
    return QDateTime::fromSecsSinceEpoch(static_cast<std::uint32_t>(unixTime));
}

} // namespace iosphoto
