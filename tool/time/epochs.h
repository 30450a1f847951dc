/// The two ways in which times are counted here, as types that cannot be taken for each other.
#ifndef IOSPHOTO_TOOL_EPOCHS_H
#define IOSPHOTO_TOOL_EPOCHS_H

#include <cstdint>
#include <optional>

namespace iosphoto::tool {

/// Seconds since 1970-01-01 00:00:00 UTC: what systems and backups count.
struct UnixTime
{
    std::int64_t seconds = 0;
};

constexpr bool operator==(UnixTime left, UnixTime right)
{
    return left.seconds == right.seconds;
}
constexpr bool operator<(UnixTime left, UnixTime right)
{
    return left.seconds < right.seconds;
}

/// Seconds since 2001-01-01 00:00:00 UTC: what photo databases and records count.
struct CoreDataTime
{
    double seconds = 0;
};

constexpr bool operator<(CoreDataTime left, CoreDataTime right)
{
    return left.seconds < right.seconds;
}

constexpr std::int64_t secondsPerDay = std::int64_t{24} * 60 * 60;

/// Nothing beyond the years 1 to 9999, which no calendar text has.
std::optional<UnixTime> unixTimeOf(CoreDataTime time);

/// Whether the year of a time is one from 1 to 9999.
bool isOfTheCalendar(UnixTime time);
bool isOfTheCalendar(CoreDataTime time);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_EPOCHS_H
