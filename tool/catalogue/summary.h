#ifndef IOSPHOTO_TOOL_SUMMARY_H
#define IOSPHOTO_TOOL_SUMMARY_H

#include "catalogue/assets.h"
#include "catalogue/known_dates.h"
#include "time/epochs.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace iosphoto::tool {

/// A number of assets and the bytes of their original files.
struct Tally
{
    std::int64_t count = 0;
    std::int64_t bytes = 0;
};

/// How many assets of which kinds a library has, and from when to when.
struct Summary
{
    Tally all;
    std::vector<Tally> byKind; ///< as photoKinds() lists them
    std::optional<CoreDataTime> firstCreated;
    std::optional<CoreDataTime> lastCreated;
    std::size_t foldedFrames = 0; ///< of bursts, for each of which a list shows one
};

Summary summaryOf(const AssetList &assets, const KnownDates &dates);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_SUMMARY_H
