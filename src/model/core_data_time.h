/// Times as the database holds them: seconds since 2001-01-01 00:00:00 UTC.
#ifndef IOSPHOTO_CORE_DATA_TIME_H
#define IOSPHOTO_CORE_DATA_TIME_H

#include <QDateTime>

#include <cstdint>

namespace iosphoto {

/// Unix time of 2001-01-01 00:00:00 UTC.
constexpr std::int64_t coreDataEpoch = 978307200;

/// `seconds` without its fraction; numbers out of range become the nearest in range.
std::int64_t wholeSeconds(double seconds);

/// The local time of the lowest 32 bits of `unixTime`, read unsigned: dates wrap after 2106.
QDateTime localTime(std::int64_t unixTime);

} // namespace iosphoto

#endif // IOSPHOTO_CORE_DATA_TIME_H
