#include "time/time_span.h"

#include <QDateTime>
#include <QRegularExpression>

namespace iosphoto::tool {

namespace {

TimeSpan spanOf(const QDateTime &first, const QDateTime &last)
{
    return {{first.toSecsSinceEpoch()}, {last.toSecsSinceEpoch()}};
}

/// From the beginning of a day to the end of another; nothing where one is no day.
std::optional<TimeSpan> spanOfDays(const QDate &first, const QDate &last)
{
    if (!first.isValid() || !last.isValid())
        return std::nullopt;
    return spanOf(first.startOfDay(), last.addDays(1).startOfDay().addSecs(-1));
}

std::optional<TimeSpan> parseYear(const QString &text)
{
    const QDate first = QDate::fromString(text + "-01-01", Qt::ISODate);
    return spanOfDays(first, first.addYears(1).addDays(-1));
}

std::optional<TimeSpan> parseMonth(const QString &text)
{
    const QDate first = QDate::fromString(text + "-01", Qt::ISODate);
    return spanOfDays(first, first.addMonths(1).addDays(-1));
}

std::optional<TimeSpan> parseDay(const QString &text)
{
    const QDate day = QDate::fromString(text, Qt::ISODate);
    return spanOfDays(day, day);
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

/// The day that lies a count of days, weeks, months or years before another.
QDate earlier(const QDate &day, int count, QChar unit)
{
    switch (unit.toLatin1()) {
    case 'd':
        return day.addDays(-count);
    case 'w':
        return day.addDays(-7 * static_cast<qint64>(count));
    case 'm':
        return day.addMonths(-count);
    default:
        return day.addYears(-count);
    }
}

/// The days that are named by how long ago they are.
std::optional<TimeSpan> parseDayBefore(const QString &text, const QDate &today)
{
    if (text == "today")
        return spanOfDays(today, today);
    if (text == "yesterday")
        return spanOfDays(today.addDays(-1), today.addDays(-1));
    static const QRegularExpression ago("^([0-9]{1,4})([dwmy])$");
    const QRegularExpressionMatch found = ago.match(text);
    if (!found.hasMatch())
        return std::nullopt;
    const QDate day = earlier(today, found.captured(1).toInt(), found.captured(2).at(0));
    return day.year() > 0 ? spanOfDays(day, day) : std::nullopt;
}

} // namespace

std::optional<TimeSpan> parseTime(const std::string &text, UnixTime now)
{
    if (text == "now")
        return TimeSpan{now, now};
    const QString written = QString::fromStdString(text).trimmed().replace(' ', 'T');
    const QDate today = QDateTime::fromSecsSinceEpoch(now.seconds).date();
    if (const auto span = parseDayBefore(written, today))
        return span;
    switch (written.size()) {
    case 4:
        return parseYear(written);
    case 7:
        return parseMonth(written);
    case 10:
        return parseDay(written);
    default:
        return parseMoment(written);
    }
}

} // namespace iosphoto::tool
