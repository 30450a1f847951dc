#ifndef IOSPHOTO_BURSTS_H
#define IOSPHOTO_BURSTS_H

#include "ios_photo.h"

namespace iosphoto {

/// Whether a frame of this pick type (`ZAVALANCHEPICKTYPE`, 0 for no burst) stands for its burst.
constexpr bool standsForBurst(int pickType)
{
    return pickType == 16 || pickType == 20 || pickType == 52;
}

/// The Camera Roll leaves out the frames that nobody picked (2) and those that only the system
/// picked (4).
constexpr bool isShownInCameraRoll(int pickType)
{
    return pickType != 2 && pickType != 4;
}

/// The first Bursts album, smart or not, which holds every frame; a null pointer if there is none.
const CAlbumGroup *burstsAlbum(const std::vector<CAlbumGroup> &albums);

} // namespace iosphoto

#endif // IOSPHOTO_BURSTS_H
