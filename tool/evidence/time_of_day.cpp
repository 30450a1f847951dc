#include "evidence/time_of_day.h"

#include "output/utc_offset.h"

#include <QDateTime>
#include <QTimeZone>

#include <fmt/format.h>

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
    return utcOffset(QDateTime::currentDateTime().offsetFromUtc());
}

} // namespace iosphoto::tool
