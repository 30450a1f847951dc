#ifndef IOSPHOTO_TOOL_SNAPSHOT_AGE_H
#define IOSPHOTO_TOOL_SNAPSHOT_AGE_H

#include "sqlite/copy_database.h"
#include "time/epochs.h"

#include <cstdint>
#include <string>

namespace iosphoto::tool {

/// What the rows of a photo database tell of how late it is of, whatever the times of files say.
struct SnapshotAge
{
    std::string store;           ///< which database it is a snapshot of; may be empty
    std::int64_t counter = 0;    ///< the highest key that an asset ever had
    std::int64_t highestKey = 0; ///< the one that an asset has now
    std::int64_t assets = 0;     ///< rows of them
    std::int64_t saves = 0;      ///< how often these were written, all together
    CoreDataTime newestAdded;    ///< date on which one was added
    CoreDataTime newestDate;     ///< on which one was added, changed or trashed

    /// Keys are given once, in order, and rows that went do not come back. So of two snapshots the
    /// one with the higher counter is later, else the one with fewer rows. Else both have the same
    /// rows: the one that wrote them more often is later, else the one with the newer date. The
    /// date may not gainsay the number, as an undone edit takes a date away. Of another store, and
    /// where the counter was not kept, rows may differ, so that only dates of adding tell.
    bool isLaterThan(const SnapshotAge &other) const;
};

/// @param now  no date counts that is more than a day later
SnapshotAge readSnapshotAge(const CopyDatabase &database, UnixTime now);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_SNAPSHOT_AGE_H
