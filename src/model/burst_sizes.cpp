#include "model/burst_sizes.h"

namespace iosphoto {

BurstSizes::BurstSizes(const CAlbumGroup *album)
{
    if (album == nullptr)
        return;
    for (const CPhotoData *frame : album->photos)
        add(frame->burstUuid);
    expected_ = 0;
}

void BurstSizes::add(const QString &burstUuid)
{
    if (expected_ >= bursts_.size() || bursts_[expected_].uuid != burstUuid) {
        const auto [place, isNew] = places_.emplace(burstUuid, bursts_.size());
        if (isNew)
            bursts_.push_back({burstUuid, 0});
        expected_ = place->second;
    }
    ++bursts_[expected_].frames;
}

std::int32_t BurstSizes::of(const QString &burstUuid) noexcept
{
    if (expected_ >= bursts_.size() || bursts_[expected_].uuid != burstUuid) {
        const auto place = places_.find(burstUuid);
        if (place == places_.end())
            return 0;
        expected_ = place->second;
    }
    return bursts_[expected_++].frames;
}

} // namespace iosphoto
