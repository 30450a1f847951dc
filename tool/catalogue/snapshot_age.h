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
    CoreDataTime newestDate;     ///< on which one was added or changed

    /// Keys are given once, in order, and rows that went do not come back. So of two snapshots the
    /// one with the higher keys is later, else the one with fewer rows, else the one with the newer
    /// date. Where the counter was not kept the date has to agree.
    bool isLaterThan(const SnapshotAge &other) const;
};

SnapshotAge readSnapshotAge(const CopyDatabase &database);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_SNAPSHOT_AGE_H
