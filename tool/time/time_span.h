#ifndef IOSPHOTO_TOOL_TIME_SPAN_H
#define IOSPHOTO_TOOL_TIME_SPAN_H

#include "time/epochs.h"

#include <optional>
#include <string>

namespace iosphoto::tool {

/// A time that somebody wrote: from its first second to its last, which for a year are a year
/// apart.
struct TimeSpan
{
    UnixTime first;
    UnixTime last;
};

/// Reads "2024", "2024-05", "2024-05-01", "2024-05-01 12:30", "2024-05-01T12:30:00Z",
/// "2024-05-01T12:30+02:00"; as the present, "now"; and the days "today", "yesterday" and, so many
/// days, weeks, months or years before today, "7d", "2w", "3m" and "1y". Local time where no zone
/// is named. Nothing for anything else.
std::optional<TimeSpan> parseTime(const std::string &text, UnixTime now);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_TIME_SPAN_H
