#include "support/camera_roll_run.h"

#include <stdexcept>

namespace iosphoto::test {

int readCameraRoll(QDevPhotoDbMgr &manager)
{
    manager.GetPrimarykeyTabAssetInfo();
    manager.GetPrimarykeyTabAlbumInfo();
    return manager.GetCameraAlbum();
}

CameraRollRun::CameraRollRun(const LibraryBuilder &library)
    : CameraRollRun(library, library.schema().iosVersion, library.schema().productType)
{
}

CameraRollRun::CameraRollRun(const LibraryBuilder &library, const std::string &ios,
                             const std::string &model)
    : OwningManager(library.path(), ios, model)
{
    SetDefaultAlbum();
    rows = readCameraRoll(*this);
}

Kinds CameraRollRun::shownIn(const char *fileName) const
{
    Kinds kinds;
    for (const CAlbumGroup &album : albums)
        for (const CPhotoData *photo : album.photos)
            if (photo->fileName == QString::fromUtf8(fileName))
                kinds.insert(album.albumKind);
    return kinds;
}

const CPhotoData &CameraRollRun::photo(AlbumKind::Code kind, const char *fileName) const
{
    for (const CAlbumGroup &album : albums)
        for (const CPhotoData *photo : album.photos)
            if (album.albumKind == kind && photo->fileName == QString::fromUtf8(fileName))
                return *photo;
    throw std::runtime_error(std::string("not in the album: ") + fileName);
}

} // namespace iosphoto::test
