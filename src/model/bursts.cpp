#include "model/bursts.h"

#include <algorithm>

namespace iosphoto {

const CAlbumGroup *burstsAlbum(const std::vector<CAlbumGroup> &albums)
{
    const auto found = std::find_if(albums.begin(), albums.end(), [](const CAlbumGroup &album) {
        return album.albumKind == AlbumKind::Bursts;
    });
    return found != albums.end() ? &*found : nullptr;
}

int countBurstFrames(const std::vector<CAlbumGroup> &albums, const QString &burstUuid)
{
    const CAlbumGroup *bursts = burstsAlbum(albums);
    if (bursts == nullptr)
        return 0;
    return static_cast<int>(
        std::count_if(bursts->photos.begin(), bursts->photos.end(),
                      [&](const CPhotoData *frame) { return frame->burstUuid == burstUuid; }));
}

} // namespace iosphoto
