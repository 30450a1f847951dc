#include "time/time_text.h"

#include <QDateTime>
#include <QTimeZone>

#include <fmt/compile.h>

#include <cstdlib>

namespace iosphoto::tool {

namespace {

constexpr char timeFormat[] = "yyyy-MM-dd HH:mm ";

/// Before them Qt has no summer time, and behind them that of 2037.
constexpr UnixTime endOfUsualYears = {2114380800}; // 2037-01-01

std::string zoneText(int offset)
{
    return offset == 0 ? "UTC" : utcOffset(offset);
}

} // namespace

std::string localTimeText(UnixTime time)
{
    if (!(time < UnixTime{0}) && time < endOfUsualYears) {
        const std::time_t seconds = time.seconds;
        std::tm local = {};
        localtime_r(&seconds, &local); // a QDateTime asks the system each time for its zone
        return fmt::format(FMT_COMPILE("{:04}-{:02}-{:02} {:02}:{:02} "), local.tm_year + 1900,
                           local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min) +
               zoneText(static_cast<int>(local.tm_gmtoff));
    }
    const QDateTime local = QDateTime::fromSecsSinceEpoch(time.seconds);
    return local.toString(timeFormat).toStdString() + zoneText(local.offsetFromUtc());
}

std::string localDayText(UnixTime time)
{
    return QDateTime::fromSecsSinceEpoch(time.seconds).date().toString(Qt::ISODate).toStdString();
}

std::string utcTimeText(UnixTime time)
{
    if (!isOfTheCalendar(time))
        return "";
    const std::time_t seconds = time.seconds;
    std::tm utc = {};
    gmtime_r(&seconds, &utc); // a QDateTime takes too long for millions
    return fmt::format(FMT_COMPILE("{:04}-{:02}-{:02}T{:02}:{:02}:{:02}Z"), utc.tm_year + 1900,
                       utc.tm_mon + 1, utc.tm_mday, utc.tm_hour, utc.tm_min, utc.tm_sec);
}

std::string utcTimeText(CoreDataTime time)
{
    const auto unixTime = unixTimeOf(time);
    return unixTime ? utcTimeText(*unixTime) : "";
}

std::string preciseTimeText(const timespec &moment)
{
    const QDateTime second = QDateTime::fromSecsSinceEpoch(moment.tv_sec, Qt::UTC);
    return fmt::format("{}.{:09}Z", second.toString("yyyy-MM-ddTHH:mm:ss").toStdString(),
                       moment.tv_nsec);
}

std::string utcNow()
{
    return QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs).toStdString();
}

std::string utcOffset(int seconds)
{
    const int minutes = std::abs(seconds) / 60;
    return fmt::format("{}{:02}:{:02}", seconds < 0 ? '-' : '+', minutes / 60, minutes % 60);
}

std::string utcOffsetNow()
{
    return utcOffset(QDateTime::currentDateTime().offsetFromUtc());
}

std::string timeZoneName()
{
    const QByteArray name = QTimeZone::systemTimeZoneId();
    if (QTimeZone(name).isValid())
        return name.toStdString();
    return zoneText(QDateTime::currentDateTime().offsetFromUtc()); // whatever TZ says
}

} // namespace iosphoto::tool
