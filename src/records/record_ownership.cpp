#include "records/record_ownership.h"

namespace iosphoto {

void append(CAlbumGroup &album, std::unique_ptr<CPhotoData> photo)
{
    album.photos.push_back(photo.get());
    static_cast<void>(photo.release());
}

void appendCopy(CAlbumGroup &album, const CPhotoData &photo)
{
    std::unique_ptr<CPhotoData> copy(CPhotoData::GetPhotoDataClone(&photo));
    copy->albumUuid = album.albumUuid;
    copy->albumName = album.albumName;
    append(album, std::move(copy));
}

void destroyRecords(std::vector<CAlbumGroup> &albums)
{
    for (CAlbumGroup &album : albums) {
        for (const CPhotoData *photo : album.photos)
            delete photo;
        album.photos.clear();
    }
}

} // namespace iosphoto
