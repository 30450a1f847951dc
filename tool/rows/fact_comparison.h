#ifndef IOSPHOTO_TOOL_FACT_COMPARISON_H
#define IOSPHOTO_TOOL_FACT_COMPARISON_H

#include "rows/photo_fields.h"

#include <string>
#include <vector>

namespace iosphoto::tool {

/// Finds the facts of a photo that are not the same in two lists of photos.
class FactComparison
{
public:
    struct Side
    {
        const AssetList &assets;
        const Trash &trash;
        const KnownDates &dates;
        const LeftOutPhotos *leftOut = nullptr; ///< whose list it is, if it is theirs
    };

    FactComparison(const Side &before, const Side &after);

    /// The keys of all but the albums, in which indices shift.
    std::vector<std::string> differing(const Asset &before, const Asset &after) const;

private:
    static PhotoRow rowOf(const Asset &asset, const Side &side, const BurstFrames &bursts);

    Side before_;
    Side after_;
    BurstFrames burstsBefore_;
    BurstFrames burstsAfter_;
    std::vector<Field<PhotoRow>> fields_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_FACT_COMPARISON_H
