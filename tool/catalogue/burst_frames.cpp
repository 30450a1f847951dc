#include "catalogue/burst_frames.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace iosphoto::tool {

namespace {

/// Empty for an asset of no burst.
QString burstOf(const Asset &asset)
{
    for (const Appearance &appearance : asset)
        if (appearance.record->isBurst && !appearance.record->burstUuid.isEmpty())
            return appearance.record->burstUuid;
    return {};
}

bool isPick(const Asset &asset)
{
    return std::any_of(asset.begin(), asset.end(), [](const Appearance &appearance) {
        return appearance.record->isBurstPick != 0;
    });
}

/// Whether `left` rather than `right` stands for the burst of both.
bool isBetter(const Asset &left, const Asset &right)
{
    const auto rank = [](const Asset &asset) {
        const CPhotoData &record = *asset.begin()->record;
        return std::make_tuple(!isPick(asset), record.createdTime, record.fileName);
    };
    return rank(left) < rank(right);
}

} // namespace

BurstFrames::BurstFrames(const AssetList &assets)
{
    for (std::size_t i = 0; i < assets.size(); ++i)
        if (const QString burst = burstOf(assets[i]); !burst.isEmpty())
            ++counts_[burst];
}

int BurstFrames::count(const Asset &asset) const
{
    const QString burst = burstOf(asset);
    return burst.isEmpty() ? 0 : counts_.at(burst);
}

std::vector<Asset> BurstFrames::oneOfEach(const std::vector<Asset> &assets)
{
    std::map<std::pair<QString, bool>, std::size_t> places;
    std::vector<Asset> lines;
    for (const Asset &asset : assets) {
        const QString burst = burstOf(asset);
        const auto place =
            burst.isEmpty()
                ? lines.size()
                : places.try_emplace({burst, asset.has(&CPhotoData::isDeleted)}, lines.size())
                      .first->second;
        if (place == lines.size())
            lines.push_back(asset);
        else if (isBetter(asset, lines[place]))
            lines[place] = asset;
    }
    return lines;
}

} // namespace iosphoto::tool
