#ifndef IOSPHOTO_TOOL_TIME_TEXT_H
#define IOSPHOTO_TOOL_TIME_TEXT_H

#include "time/epochs.h"

#include <ctime>
#include <string>

namespace iosphoto::tool {

/// "2024-05-01 14:30 +02:00": local, for people.
std::string localTimeText(UnixTime time);

/// "2024-05-01": the same moment's local day.
std::string localDayText(UnixTime time);

/// "2024-05-01T12:30:00Z", for documents; empty beyond the years 1 to 9999.
std::string utcTimeText(UnixTime time);
std::string utcTimeText(CoreDataTime time);

/// A moment as "2020-01-06T10:40:00.123456789Z".
std::string preciseTimeText(const timespec &moment);

/// Now, as "2020-01-06T10:40:00.123Z".
std::string utcNow();

/// An offset of a time zone in seconds as "+08:00". Names of zones stand for several: CST is one in
/// China and another in Chicago.
std::string utcOffset(int seconds);

/// The offset of local time from UTC at this moment, as "+02:00".
std::string utcOffsetNow();

/// The name of the time zone that is set, such as "Europe/Berlin"; its offset, or "UTC",
/// where it has none that is known.
std::string timeZoneName();

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_TIME_TEXT_H
