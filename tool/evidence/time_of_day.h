#ifndef IOSPHOTO_TOOL_TIME_OF_DAY_H
#define IOSPHOTO_TOOL_TIME_OF_DAY_H

#include <ctime>
#include <string>

namespace iosphoto::tool {

/// Now, as "2020-01-06T10:40:00.123Z".
std::string utcNow();

/// A moment as "2020-01-06T10:40:00.123456789Z".
std::string utcText(const timespec &moment);

/// The name of the time zone that is set, such as "Europe/Berlin"; its offset where it has none.
std::string timeZoneName();

/// The offset of local time from UTC at this moment, as "+02:00".
std::string utcOffsetNow();

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_TIME_OF_DAY_H
