#include "catalogue/summary.h"

#include "catalogue/burst_frames.h"
#include "catalogue/photo_kinds.h"

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

void addTime(Summary &summary, const std::optional<CoreDataTime> &created)
{
    if (!created || !isOfTheCalendar(*created))
        return;
    summary.firstCreated = std::min(summary.firstCreated.value_or(*created), *created);
    summary.lastCreated = std::max(summary.lastCreated.value_or(*created), *created);
}

std::size_t foldedFramesOf(const AssetList &assets)
{
    ChosenAssets chosen(assets, assets);
    for (const Asset asset : assets)
        chosen.push_back(asset);
    BurstFrames::keepOneOfEach(chosen);
    return assets.size() - chosen.size();
}

} // namespace

Summary summaryOf(const AssetList &assets, const KnownDates &dates)
{
    const std::vector<PhotoKind> &kinds = photoKinds();
    Summary summary;
    summary.byKind.resize(kinds.size());
    for (const Asset asset : assets) {
        const CPhotoData &photo = asset.firstRecord();
        add(summary.all, photo);
        for (std::size_t kind = 0; kind < kinds.size(); ++kind)
            if (kinds[kind].test(asset))
                add(summary.byKind[kind], photo);
        addTime(summary, dates.created(photo));
    }
    summary.foldedFrames = foldedFramesOf(assets);
    return summary;
}

} // namespace iosphoto::tool
