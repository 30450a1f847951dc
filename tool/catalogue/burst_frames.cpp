#include "catalogue/burst_frames.h"

#include <algorithm>
#include <tuple>

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
        const CPhotoData &record = asset.firstRecord();
        return std::make_tuple(!isPick(asset), record.createdTime, record.fileName);
    };
    return rank(left) < rank(right);
}

/// A frame among chosen assets.
struct Frame
{
    QString burst;
    bool isDeleted;
    std::size_t place;

    bool isWith(const Frame &other) const
    {
        return isDeleted == other.isDeleted && burst == other.burst;
    }
    bool operator<(const Frame &other) const
    {
        return std::tie(burst, isDeleted, place) <
               std::tie(other.burst, other.isDeleted, other.place);
    }
};

std::vector<Frame> sortedFrames(const ChosenAssets &assets)
{
    std::vector<Frame> frames;
    for (std::size_t i = 0; i < assets.size(); ++i)
        if (const QString burst = burstOf(assets[i]); !burst.isEmpty())
            frames.push_back({burst, assets[i].has(&CPhotoData::isDeleted), i});
    std::sort(frames.begin(), frames.end());
    return frames;
}

} // namespace

BurstFrames::BurstFrames(const AssetList &assets)
{
    std::vector<QString> uuids;
    for (const Asset asset : assets)
        if (const QString burst = burstOf(asset); !burst.isEmpty())
            uuids.push_back(burst);
    std::sort(uuids.begin(), uuids.end());
    for (const QString &uuid : uuids) {
        if (bursts_.empty() || bursts_.back().uuid != uuid)
            bursts_.push_back({uuid, 0});
        ++bursts_.back().frames;
    }
}

int BurstFrames::count(const Asset &asset) const
{
    const QString uuid = burstOf(asset);
    if (uuid.isEmpty())
        return 0;
    return std::lower_bound(
               bursts_.begin(), bursts_.end(), uuid,
               [](const Burst &burst, const QString &wanted) { return burst.uuid < wanted; })
        ->frames;
}

void BurstFrames::keepOneOfEach(ChosenAssets &assets)
{
    const std::vector<Frame> frames = sortedFrames(assets);
    std::vector<RecordNumber> &numbers = assets.numbers();
    const Frame *first = nullptr;
    for (const Frame &frame : frames) {
        if (first == nullptr || !frame.isWith(*first)) {
            first = &frame;
            continue;
        }
        if (isBetter(assets[frame.place], assets[first->place]))
            numbers[first->place] = numbers[frame.place];
        numbers[frame.place] = noRecord;
    }
    numbers.erase(std::remove(numbers.begin(), numbers.end(), noRecord), numbers.end());
}

} // namespace iosphoto::tool
