#include "time/time_text.h"

#include "model/clock.h"
#include "model/core_data_time.h"
#include "process/failure.h"
#include "text/translate.h"

#include <QDateTime>
#include <QTimeZone>

#include <fmt/compile.h>
#include <fmt/format.h>

#include <cstdlib>
#include <ctime>

namespace iosphoto::tool {

namespace {

constexpr char timeFormat[] = "yyyy-MM-dd HH:mm ";

bool isOfTheCalendar(std::int64_t unixTime)
{
    constexpr std::int64_t firstSecond = -62135596800; // 0001-01-01 00:00:00
    constexpr std::int64_t lastSecond = 253402300799;  // 9999-12-31 23:59:59
    return unixTime >= firstSecond && unixTime <= lastSecond;
}

TimeSpan spanOf(const QDateTime &first, int seconds)
{
    const std::int64_t start = first.toSecsSinceEpoch();
    return {start, start + seconds - 1};
}

} // namespace

TimeSpan parseTime(const std::string &text, const std::string &option)
{
    if (text == "now")
        return {currentUnixTime(), currentUnixTime()};
    const QString written = QString::fromStdString(text).trimmed().replace(' ', 'T');
    constexpr int dayLength = 10;
    if (written.size() == dayLength) {
        const QDate day = QDate::fromString(written, Qt::ISODate);
        if (day.isValid())
            return {day.startOfDay().toSecsSinceEpoch(), day.endOfDay().toSecsSinceEpoch()};
    } else if (const auto time = QDateTime::fromString(written, Qt::ISODate); time.isValid()) {
        constexpr int lengthWithoutSeconds = 16; // "2024-05-01T12:30"
        const bool hasSeconds =
            written.size() > lengthWithoutSeconds && written.at(lengthWithoutSeconds) == ':';
        return spanOf(time, hasSeconds ? 1 : 60);
    }
    throw Failure(WrongUsage, translate("{0}: '{1}' is no time; write it like 2024-05-01, "
                                        "'2024-05-01 12:30', 2024-05-01T12:30:00Z or now",
                                        option, text));
}

std::string localTimeText(std::int64_t unixTime)
{
    const QDateTime time = QDateTime::fromSecsSinceEpoch(unixTime);
    const int offset = time.offsetFromUtc();
    return time.toString(timeFormat).toStdString() + (offset == 0 ? "UTC" : utcOffset(offset));
}

std::string localDayText(std::int64_t unixTime)
{
    return QDateTime::fromSecsSinceEpoch(unixTime).date().toString(Qt::ISODate).toStdString();
}

std::optional<std::int64_t> unixTimeOf(double coreDataSeconds)
{
    constexpr double years = 366.0 * 24 * 60 * 60;
    if (!(coreDataSeconds > -9999 * years && coreDataSeconds < 9999 * years))
        return std::nullopt;
    const std::int64_t unixTime = wholeSeconds(coreDataSeconds) + coreDataEpoch;
    return isOfTheCalendar(unixTime) ? std::optional(unixTime) : std::nullopt;
}

std::string utcTimeText(std::int64_t unixTime)
{
    if (!isOfTheCalendar(unixTime))
        return "";
    const std::time_t time = unixTime;
    std::tm utc = {};
    gmtime_r(&time, &utc); // a QDateTime takes too long for millions
    return fmt::format(FMT_COMPILE("{:04}-{:02}-{:02}T{:02}:{:02}:{:02}Z"), utc.tm_year + 1900,
                       utc.tm_mon + 1, utc.tm_mday, utc.tm_hour, utc.tm_min, utc.tm_sec);
}

std::string utcTimeOf(double coreDataSeconds)
{
    const auto unixTime = unixTimeOf(coreDataSeconds);
    return unixTime ? utcTimeText(*unixTime) : "";
}

bool isOfTheCalendar(double coreDataSeconds)
{
    return unixTimeOf(coreDataSeconds).has_value();
}

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

std::string utcOffset(int seconds)
{
    const int minutes = std::abs(seconds) / 60;
    return fmt::format("{}{:02}:{:02}", seconds < 0 ? '-' : '+', minutes / 60, minutes % 60);
}

} // namespace iosphoto::tool
