#include "evidence/time_of_day.h"

#include <QDateTime>
#include <QTimeZone>

#include <fmt/format.h>

#include <cstdlib>

namespace iosphoto::tool {

std::string utcNow()
{
    return QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs).toStdString();
}

std::string utcText(const timespec &moment)
{
    const QDateTime second = QDateTime::fromSecsSinceEpoch(moment.tv_sec, Qt::UTC);
    return fmt::format("{}.{:09}Z", second.toString("yyyy-MM-ddTHH:mm:ss").toStdString(),
                       moment.tv_nsec);
}

std::string timeZoneName()
{
    const std::string name = QTimeZone::systemTimeZoneId().toStdString();
    return name.empty() ? utcOffsetNow() : name;
}

std::string utcOffsetNow()
{
    constexpr int minute = 60;
    constexpr int hour = 60 * minute;
    const int offset = QDateTime::currentDateTime().offsetFromUtc();
    const int size = std::abs(offset);
    return fmt::format("{}{:02}:{:02}", offset < 0 ? '-' : '+', size / hour, size % hour / minute);
}

} // namespace iosphoto::tool
