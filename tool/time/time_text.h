#ifndef IOSPHOTO_TOOL_TIME_TEXT_H
#define IOSPHOTO_TOOL_TIME_TEXT_H

#include <cstdint>
#include <ctime>
#include <optional>
#include <string>

namespace iosphoto::tool {

/// A time that somebody wrote: from its first second to its last, which for a day are a day apart.
struct TimeSpan
{
    std::int64_t first; ///< Unix time
    std::int64_t last;
};

/// Reads "2024-05-01", "2024-05-01 12:30", "2024-05-01T12:30:00Z", "2024-05-01T12:30+02:00" and, as
/// the present, "now". Local time where no zone is named. Throws Failure for anything else.
/// @param option  that has the text, for the message
TimeSpan parseTime(const std::string &text, const std::string &option);

/// The moment that a library is read as of.
struct Moment
{
    std::int64_t unixTime;
    std::string why; ///< such as "Last Backup Date"; empty if the user named it
};

/// "2024-05-01 14:30 +02:00": local, for people.
std::string localTimeText(std::int64_t unixTime);

/// "2024-05-01": the same moment's local day.
std::string localDayText(std::int64_t unixTime);

/// A time of the database, in seconds since 2001; nothing beyond the years 1 to 9999.
std::optional<std::int64_t> unixTimeOf(double coreDataSeconds);

/// "2024-05-01T12:30:00Z", for documents; empty beyond the years 1 to 9999.
std::string utcTimeText(std::int64_t unixTime);

/// The same of a time that a record holds, in seconds since 2001.
std::string utcTimeOf(double coreDataSeconds);

/// Whether there is such a text for a time that a record holds.
bool isOfTheCalendar(double coreDataSeconds);

/// Now, as "2020-01-06T10:40:00.123Z".
std::string utcNow();

/// A moment as "2020-01-06T10:40:00.123456789Z".
std::string utcText(const timespec &moment);

/// The name of the time zone that is set, such as "Europe/Berlin"; its offset where it has none.
std::string timeZoneName();

/// The offset of local time from UTC at this moment, as "+02:00".
std::string utcOffsetNow();

/// An offset of a time zone in seconds as "+08:00". Names of zones stand for several: CST is one in
/// China and another in Chicago.
std::string utcOffset(int seconds);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_TIME_TEXT_H
