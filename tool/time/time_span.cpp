#include "time/time_span.h"

#include "model/clock.h"

#include <QDateTime>

namespace iosphoto::tool {

namespace {

TimeSpan spanOf(const QDateTime &first, const QDateTime &last)
{
    return {{first.toSecsSinceEpoch()}, {last.toSecsSinceEpoch()}};
}

std::optional<TimeSpan> parseDay(const QString &text)
{
    const QDate day = QDate::fromString(text, Qt::ISODate);
    return day.isValid() ? std::make_optional(spanOf(day.startOfDay(), day.endOfDay()))
                         : std::nullopt;
}

std::optional<TimeSpan> parseMoment(const QString &text)
{
    const QDateTime first = QDateTime::fromString(text, Qt::ISODate);
    if (!first.isValid())
        return std::nullopt;
    constexpr int lengthWithoutSeconds = 16; // "2024-05-01T12:30"
    const bool hasSeconds =
        text.size() > lengthWithoutSeconds && text.at(lengthWithoutSeconds) == ':';
    return spanOf(first, first.addSecs(hasSeconds ? 0 : 59));
}

} // namespace

std::optional<TimeSpan> parseTime(const std::string &text)
{
    if (text == "now") {
        const UnixTime now = {currentUnixTime()};
        return TimeSpan{now, now};
    }
    const QString written = QString::fromStdString(text).trimmed().replace(' ', 'T');
    constexpr int dayLength = 10;
    return written.size() == dayLength ? parseDay(written) : parseMoment(written);
}

} // namespace iosphoto::tool
