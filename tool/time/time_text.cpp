#include "time/time_text.h"

#include <QDateTime>
#include <QTimeZone>

#include <fmt/compile.h>

#include <cstdlib>

namespace iosphoto::tool {

namespace {

constexpr char timeFormat[] = "yyyy-MM-dd HH:mm ";

} // namespace

std::string localTimeText(UnixTime time)
{
    const QDateTime local = QDateTime::fromSecsSinceEpoch(time.seconds);
    const int offset = local.offsetFromUtc();
    return local.toString(timeFormat).toStdString() + (offset == 0 ? "UTC" : utcOffset(offset));
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
    const std::string name = QTimeZone::systemTimeZoneId().toStdString();
    return name.empty() ? utcOffsetNow() : name;
}

} // namespace iosphoto::tool
