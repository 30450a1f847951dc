#include "model/bursts.h"

#include "model/model_devicephoto_dbmgr.h"

#include <algorithm>

const CAlbumGroup *iosphoto::burstsAlbum(const std::vector<CAlbumGroup> &albums)
{
    const auto found = std::find_if(albums.begin(), albums.end(), [](const CAlbumGroup &album) {
        return album.albumKind == AlbumKind::Bursts;
    });
    return found != albums.end() ? &*found : nullptr;
}

int QDevPhotoDbMgr::getBurstsCount(QString burstUuid) const
{
    const CAlbumGroup *bursts = iosphoto::burstsAlbum(albums);
    if (bursts == nullptr)
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
