#include "model/catalogue_finish.h"

#include "model/burst_sizes.h"
#include "model/bursts.h"
#include "model/display_texts.h"
#include "records/record_ownership.h"

#include <algorithm>
#include <numeric>

namespace iosphoto {

namespace {

using Kind = AlbumKind;
using Albums = std::vector<CAlbumGroup>;

bool isSpecialVideoKind(std::int32_t kind)
{
    return kind == Kind::TimeLapse || kind == Kind::SloMo || kind == Kind::ScreenRecordings;
}

/// Videos shows the special kinds of video too, though their records do not call them videos.
void gatherVideos(Albums &albums)
{
    for (CAlbumGroup &videos : albums) {
        if (videos.albumKind != Kind::Videos)
            continue;
        for (const CAlbumGroup &album : albums) {
            if (!isSpecialVideoKind(album.albumKind))
                continue;
            for (const CPhotoData *photo : album.photos)
                append(videos, std::unique_ptr<CPhotoData>(CPhotoData::GetPhotoDataClone(photo)));
        }
    }
}

/// Moves an album before the one at `target`, without a moment in which two albums or none hold its
/// records.
void moveBefore(Albums &albums, Albums::iterator album, std::ptrdiff_t target)
{
    const auto position = albums.begin() + target;
    if (album > position)
        std::rotate(position, album, album + 1);
    else
        std::rotate(album, album + 1, position);
}

/// Moves the first album that a computer imported under `title` to `target`.
/// @return whether there is one.
bool moveImported(Albums &albums, const char *title, bool isSmart, std::ptrdiff_t target)
{
    const QString name = translated(title);
    const auto imported = std::find_if(albums.begin(), albums.end(), [&](const CAlbumGroup &album) {
        return album.isSmartAlbum == isSmart && album.albumKind == Kind::User &&
               album.albumName == name;
    });
    if (imported == albums.end())
        return false;
    if (imported != albums.begin() + target)
        moveBefore(albums, imported, target);
    return true;
}

/// An imported Camera Roll counts as an album made on the device, an imported Photo Library does
/// not: the two are told apart by the flag, not only by their titles.
void moveImportedToFront(Albums &albums)
{
    constexpr std::ptrdiff_t behindPhotoLibrary = 2;
    const bool moved =
        moveImported(albums, display_text::importedCameraRoll, true, behindPhotoLibrary);
    moveImported(albums, display_text::importedPhotoLibrary, false,
                 behindPhotoLibrary + (moved ? 1 : 0));
}

void moveRecentlyDeletedToEnd(Albums &albums)
{
    const auto deleted = std::find_if(albums.begin(), albums.end(), [](const CAlbumGroup &album) {
        return album.isSmartAlbum && album.albumKind == Kind::RecentlyDeleted;
    });
    if (deleted != albums.end())
        std::rotate(deleted, deleted + 1, albums.end());
}

bool isKeptEmpty(std::int32_t kind)
{
    return kind == Kind::CameraRoll || kind == Kind::PhotoLibrary ||
           kind == Kind::RecentlyDeleted || kind == Kind::User;
}

/// Albums are numbered anew only when one was dropped; otherwise they keep the numbers under which
/// they were appended.
void dropEmpty(Albums &albums)
{
    const auto dropped = std::remove_if(albums.begin(), albums.end(), [](const CAlbumGroup &album) {
        return album.photos.empty() && !isKeptEmpty(album.albumKind);
    });
    if (dropped == albums.end())
        return;
    albums.erase(dropped, albums.end());
    std::int32_t index = 0;
    for (CAlbumGroup &album : albums)
        album.albumIndex = index++;
}

bool isThinnedOut(const CPhotoData &photo)
{
    return photo.isBurst && photo.isBurstPick == 0;
}

/// Only the Bursts album keeps every frame. All in one walk, since fetching the records of a large
/// album from memory takes longer than what is done to them.
void thinBurstsAndSetSizes(CAlbumGroup &album, BurstSizes &sizes)
{
    const bool keepsFrames = album.albumKind == Kind::Bursts;
    const auto dropped =
        std::remove_if(album.photos.begin(), album.photos.end(), [&](CPhotoData *photo) {
            if (!keepsFrames && isThinnedOut(*photo)) {
                delete photo;
                return true;
            }
            if (photo->isBurst)
                photo->burstCount = photo->isBurstPick != 0 ? sizes.of(photo->burstUuid) : 0;
            return false;
        });
    album.photos.erase(dropped, album.photos.end());
}

void thinBurstsAndSetSizes(Albums &albums)
{
    BurstSizes sizes(burstsAlbum(albums));
    for (CAlbumGroup &album : albums)
        thinBurstsAndSetSizes(album, sizes);
}

std::int32_t photoCount(const CAlbumGroup &album)
{
    if (album.albumKind != Kind::Bursts)
        return static_cast<std::int32_t>(album.photos.size());
    return std::accumulate(
        album.photos.begin(), album.photos.end(), 0,
        [](std::int32_t bursts, const CPhotoData *photo) { return bursts + photo->isBurstPick; });
}

void countAndLabel(Albums &albums)
{
    for (CAlbumGroup &album : albums) {
        album.albumCount = photoCount(album);
        if (album.albumKind == Kind::CameraRoll || album.albumKind == Kind::PhotoLibrary)
            continue;
        for (CPhotoData *photo : album.photos) {
            photo->albumUuid = album.albumUuid;
            photo->albumName = album.albumName;
        }
    }
}

} // namespace

void finishCatalogue(Albums &albums)
{
    gatherVideos(albums);
    moveImportedToFront(albums);
    moveRecentlyDeletedToEnd(albums);
    dropEmpty(albums);
    thinBurstsAndSetSizes(albums);
    countAndLabel(albums);
}

} // namespace iosphoto
