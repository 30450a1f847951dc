#ifndef IOSPHOTO_BURSTS_H
#define IOSPHOTO_BURSTS_H

#include "ios_photo.h"
#include "model/database_codes.h"

namespace iosphoto {

/// Whether a frame of this pick type stands for its burst.
constexpr bool standsForBurst(int pickType)
{
    return pickType == BurstPickType::Shown || pickType == BurstPickType::ShownPickedBySystem ||
           pickType == BurstPickType::ShownWithoutSelection;
}

/// Whether the Camera Roll shows an asset of this pick type.
constexpr bool isShownInCameraRoll(int pickType)
{
    return pickType != BurstPickType::NotPicked && pickType != BurstPickType::PickedBySystem;
}

/// The first Bursts album, smart or not, which holds every frame; a null pointer if there is none.
const CAlbumGroup *burstsAlbum(const std::vector<CAlbumGroup> &albums);

/// How many frames that album holds of a burst. Walks through all of it; see BurstSizes for many
/// bursts.
int countBurstFrames(const std::vector<CAlbumGroup> &albums, const QString &burstUuid);

} // namespace iosphoto

#endif // IOSPHOTO_BURSTS_H
