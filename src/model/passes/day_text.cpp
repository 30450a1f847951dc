#include "model/passes/day_text.h"

#include "model/core_data_time.h"

#include <QDate>

#include <ctime>

namespace iosphoto {

namespace {

constexpr std::uint32_t secondsOfADay = 24 * 60 * 60;

/// 2037-12-31 23:59:59 UTC: up to here Qt asks the C library for the local time. To later years it
/// applies the rules of 2037.
constexpr std::uint32_t lastOfBoth = 2145916799;

/// Unlike Qt's conversions this one does not look at the time zone's file each time, which costs
/// more than reading the row.
std::tm localClock(std::uint32_t unixTime)
{
    const std::time_t time = unixTime;
    std::tm clock = {};
    localtime_r(&time, &clock);
    return clock;
}

std::uint32_t secondOfDay(const std::tm &clock)
{
    return static_cast<std::uint32_t>((clock.tm_hour * 60 + clock.tm_min) * 60 + clock.tm_sec);
}

bool areOfOneDay(const std::tm &one, const std::tm &other)
{
    return one.tm_yday == other.tm_yday && one.tm_year == other.tm_year;
}

} // namespace

DayText::DayText()
{
    static_cast<void>(localTime(0)); // through Qt, which guards the environment
}

QString DayText::of(std::int64_t unixTime)
{
    const auto time = static_cast<std::uint32_t>(unixTime);
    if (time < first_ || time > last_)
        remember(time);
    return text_;
}

void DayText::remember(std::uint32_t unixTime)
{
    first_ = last_ = unixTime;
    if (unixTime > lastOfBoth) {
        text_ = localTime(unixTime).date().toString(Qt::ISODate);
        return;
    }
    const std::tm clock = localClock(unixTime);
    text_ = QDate(clock.tm_year + 1900, clock.tm_mon + 1, clock.tm_mday).toString(Qt::ISODate);
    rememberDay(unixTime, clock);
}

void DayText::rememberDay(std::uint32_t unixTime, const std::tm &clock)
{
    constexpr std::uint32_t untilEnd = secondsOfADay - 1;
    const std::uint32_t sinceBegin = secondOfDay(clock);
    if (unixTime < sinceBegin || unixTime - sinceBegin > lastOfBoth - untilEnd)
        return;
    const std::uint32_t begin = unixTime - sinceBegin;
    const std::tm first = localClock(begin);
    const std::tm last = localClock(begin + untilEnd);
    // Where the clocks were set that day, these two are not its first and last second.
    if (areOfOneDay(first, clock) && secondOfDay(first) == 0 && areOfOneDay(last, clock) &&
        secondOfDay(last) == untilEnd) {
        first_ = begin;
        last_ = begin + untilEnd;
    }
}

} // namespace iosphoto
