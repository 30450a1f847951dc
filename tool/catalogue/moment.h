#ifndef IOSPHOTO_TOOL_MOMENT_H
#define IOSPHOTO_TOOL_MOMENT_H

#include <cstdint>
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

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_MOMENT_H
