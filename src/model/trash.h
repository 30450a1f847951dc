/// How long an asset stays in the trash, and since when it has been there.
#ifndef IOSPHOTO_TRASH_H
#define IOSPHOTO_TRASH_H

#include "model/core_data_time.h"

#include <cstdint>

namespace iosphoto {

constexpr std::int64_t trashKeptFor = 2592000; // 30 days, in seconds

/// Unix time at which an asset was trashed; 0 when the database does not say. A negative date is
/// read as 32 unsigned bits and gets no epoch added, so that it lies far in the future.
inline std::int64_t trashTime(std::int32_t trashedDate)
{
    if (trashedDate < 0)
        return static_cast<std::uint32_t>(trashedDate);
    return trashedDate > 0 ? trashedDate + coreDataEpoch : 0;
}

/// Whether the trash was emptied of the asset at a Unix time.
inline bool isTrashedTooLong(std::int32_t trashedDate, std::int64_t now)
{
    return trashTime(trashedDate) + trashKeptFor <= now;
}

} // namespace iosphoto

#endif // IOSPHOTO_TRASH_H
