#include "model/day_text.h"

#include "model/core_data_time.h"

#include <limits>

namespace iosphoto {

namespace {

/// Whether the clock ran through a day of 24 hours without being set.
bool isPlainDay(const QDateTime &somewhere, const QDateTime &first, const QDateTime &last)
{
    return first.date() == somewhere.date() && first.time() == QTime(0, 0) &&
           last.date() == somewhere.date() && last.time() == QTime(23, 59, 59) &&
           first.offsetFromUtc() == last.offsetFromUtc();
}

} // namespace

QString DayText::of(std::int64_t unixTime)
{
    const auto time = static_cast<std::uint32_t>(unixTime);
    if (time < first_ || time > last_)
        remember(time);
    return text_;
}

void DayText::remember(std::uint32_t unixTime)
{
    const QDateTime time = localTime(unixTime);
    text_ = time.toString(QStringLiteral("yyyy-MM-dd"));
    first_ = last_ = unixTime;

    constexpr std::int64_t untilEnd = 24 * 60 * 60 - 1;
    const std::int64_t begin = std::int64_t(unixTime) - time.time().msecsSinceStartOfDay() / 1000;
    const bool wraps = begin < 0 || begin + untilEnd > std::numeric_limits<std::uint32_t>::max();
    if (wraps || !isPlainDay(time, localTime(begin), localTime(begin + untilEnd)))
        return;
    first_ = static_cast<std::uint32_t>(begin);
    last_ = static_cast<std::uint32_t>(begin + untilEnd);
}

} // namespace iosphoto
