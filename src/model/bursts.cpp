#include "model/burst_pick.h"
#include "model/model_devicephoto_dbmgr.h"

#include <algorithm>

int QDevPhotoDbMgr::getBurstsCount(QString burstUuid) const
{
    const auto bursts = std::find_if(albums.begin(), albums.end(), [](const CAlbumGroup &album) {
        return album.albumKind == iosphoto::AlbumKind::Bursts;
    });
    if (bursts == albums.end())
        return 0;
    return static_cast<int>(
        std::count_if(bursts->photos.begin(), bursts->photos.end(),
                      [&](const CPhotoData *frame) { return frame->burstUuid == burstUuid; }));
}

bool QDevPhotoDbMgr::isBurstsMain(int pickType) const
{
    return iosphoto::standsForBurst(pickType);
}

bool QDevPhotoDbMgr::isBurstsInCamera(int pickType) const
{
    return iosphoto::isShownInCameraRoll(pickType);
}
