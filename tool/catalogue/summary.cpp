#include "catalogue/summary.h"

#include "catalogue/moment.h"

#include <algorithm>

namespace iosphoto::tool {

namespace {

void add(Tally &tally, const CPhotoData &photo)
{
    ++tally.count;
    // No file has that many bytes; a hostile database may say so.
    constexpr std::int64_t most = std::int64_t(1) << 60;
    tally.bytes = std::min(most, tally.bytes + std::clamp<std::int64_t>(photo.fileSize, 0, most));
}

bool isMoving(const CPhotoData &photo)
{
    return photo.isVideo || photo.isTimelapse || photo.isSlomo || photo.isScreenRecording;
}

} // namespace

Summary summaryOf(const AssetList &assets)
{
    Summary summary;
    for (std::size_t i = 0; i < assets.size(); ++i) {
        const CPhotoData photo = assets[i].facts();
        add(summary.all, photo);
        add(isMoving(photo) ? summary.videos : summary.photos, photo);
        for (std::size_t trait = 0; trait < std::size(traits); ++trait)
            if (photo.*traits[trait].flag)
                add(summary.byTrait.at(trait), photo);
        if (utcTimeOf(photo.createdTime).empty())
            continue;
        summary.firstCreated =
            std::min(summary.firstCreated.value_or(photo.createdTime), photo.createdTime);
        summary.lastCreated =
            std::max(summary.lastCreated.value_or(photo.createdTime), photo.createdTime);
    }
    return summary;
}

} // namespace iosphoto::tool
