#include "model/passes/smart_album_rules.h"

#include "model/database_codes.h"
#include "model/passes/camera_roll_columns.h"
#include "model/trash.h"
#include "records/record_ownership.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace iosphoto {

namespace {

using Kind = AlbumKind;
using Ios = IosGeneration;

enum class Search { First, Every };

/// Which albums of a kind take a copy, and of which assets.
struct Placement
{
    Kind::Code kind;
    Search search;
    bool needsFileName;
    bool leavesOutDeletedAndHidden;
};

// clang-format off
constexpr Placement placements[] = {
    // kind                  albums         name   not deleted or hidden
    {Kind::RecentlyDeleted,  Search::First, true,  false},
    {Kind::Panoramas,        Search::Every, true,  true},
    {Kind::Raw,              Search::First, true,  false},
    {Kind::ProRes,           Search::First, true,  false},
    {Kind::Hidden,           Search::First, true,  false},
    {Kind::TimeLapse,        Search::Every, true,  true},
    {Kind::SloMo,            Search::Every, true,  true},
    {Kind::ScreenRecordings, Search::Every, true,  true},
    {Kind::Videos,           Search::Every, true,  true},
    {Kind::Bursts,           Search::Every, true,  true},
    {Kind::LivePhotos,       Search::Every, true,  true},
    {Kind::Screenshots,      Search::First, false, true},
    {Kind::Animated,         Search::First, false, true},
    {Kind::Portrait,         Search::First, false, true},
    {Kind::Selfies,          Search::First, false, true},
    {Kind::Favorites,        Search::First, false, true},
};

/// What a video of a sub-type is from some iOS on; any other is just a video.
constexpr struct
{
    int subtype;
    Ios from;
    bool CPhotoData::*flag;
    Kind::Code kind;
} videoKinds[] = {
    {KindSubtype::Timelapse,       Ios::Ios8,  &CPhotoData::isTimelapse,       Kind::TimeLapse},
    {KindSubtype::SloMo,           Ios::Ios8,  &CPhotoData::isSlomo,           Kind::SloMo},
    {KindSubtype::ScreenRecording, Ios::Ios11, &CPhotoData::isScreenRecording, Kind::ScreenRecordings},
};
// clang-format on

std::vector<CAlbumGroup *> smartAlbums(std::vector<CAlbumGroup> &albums, const Placement &placement)
{
    std::vector<CAlbumGroup *> found;
    for (CAlbumGroup &album : albums) {
        if (album.albumKind != placement.kind || !album.isSmartAlbum)
            continue;
        found.push_back(&album);
        if (placement.search == Search::First)
            break;
    }
    return found;
}

bool isVideoType(const char *uniformTypeIdentifier)
{
    return uniformTypeIdentifier != nullptr &&
           std::any_of(std::begin(videoTypes), std::end(videoTypes), [&](const char *type) {
               return std::strcmp(uniformTypeIdentifier, type) == 0;
           });
}

} // namespace

SmartAlbumRules::SmartAlbumRules(std::vector<CAlbumGroup> &albums, const DeviceProfile &device,
                                 std::uint32_t now)
    : device_(device), now_(now)
{
    for (const Placement &placement : placements)
        targets_.at(static_cast<std::size_t>(placement.kind)) = {
            placement.needsFileName, placement.leavesOutDeletedAndHidden,
            smartAlbums(albums, placement)};
}

bool SmartAlbumRules::sort(CPhotoData &photo, const Row &row) const
{
    const bool isTrashed =
        device_.ios >= Ios::Ios8 && row.int32(camera_roll::trashedState) == TrashedState::InTrash;
    if (isTrashed && isTrashedTooLong(row.int32(camera_roll::trashedDate), now_))
        return false;

    bool isSorted = isTrashed;
    if (isTrashed)
        sortTrashed(photo);
    isSorted |= sortPanorama(photo, row);
    isSorted |= sortRawProResOrHidden(photo);
    isSorted |= sortVideo(photo, row);
    isSorted |= sortBurst(photo);
    isSorted |= sortLivePhoto(photo);
    if (!isSorted)
        sortScreenshot(photo, row);
    sortAnimated(photo, row);
    sortPortrait(photo, row);
    sortSelfie(photo, row);
    sortFavorite(photo, row);
    return true;
}

void SmartAlbumRules::copyTo(AlbumKind::Code kind, const CPhotoData &photo) const
{
    const Target &target = targets_.at(static_cast<std::size_t>(kind));
    if (target.needsFileName && photo.fileName.isEmpty())
        return;
    if (target.leavesOutDeletedAndHidden && (photo.isDeleted || photo.isHidden))
        return;
    for (CAlbumGroup *album : target.albums)
        appendCopy(*album, photo);
}

void SmartAlbumRules::sortTrashed(CPhotoData &photo) const
{
    photo.isDeleted = true;
    copyTo(Kind::RecentlyDeleted, photo);
}

bool SmartAlbumRules::sortPanorama(CPhotoData &photo, const Row &row) const
{
    if (!device_.panoramas || row.int32(camera_roll::kindSubtype) != KindSubtype::Panorama)
        return false;
    photo.isPanorama = true;
    copyTo(Kind::Panoramas, photo);
    return true;
}

bool SmartAlbumRules::sortRawProResOrHidden(const CPhotoData &photo) const
{
    if (photo.isHidden)
        copyTo(Kind::Hidden, photo);
    else if (photo.isRaw)
        copyTo(Kind::Raw, photo);
    else if (photo.isProRes)
        copyTo(Kind::ProRes, photo);
    return photo.isHidden || photo.isRaw || photo.isProRes;
}

bool SmartAlbumRules::sortVideo(CPhotoData &photo, const Row &row) const
{
    if (!isVideoType(row.cString(camera_roll::uniformTypeIdentifier)))
        return false;
    const int subtype = row.int32(camera_roll::kindSubtype);
    for (const auto &video : videoKinds) {
        if (subtype != video.subtype || device_.ios < video.from)
            continue;
        photo.*video.flag = true;
        copyTo(video.kind, photo);
        return true;
    }
    photo.isVideo = true;
    copyTo(Kind::Videos, photo);
    return true;
}

bool SmartAlbumRules::sortBurst(const CPhotoData &photo) const
{
    if (photo.isBurst)
        copyTo(Kind::Bursts, photo);
    return photo.isBurst;
}

bool SmartAlbumRules::sortLivePhoto(const CPhotoData &photo) const
{
    if (!photo.isLivePhoto || photo.isDeleted || photo.isHidden)
        return false;
    copyTo(Kind::LivePhotos, photo);
    return true;
}

void SmartAlbumRules::sortScreenshot(CPhotoData &photo, const Row &row) const
{
    if (!isScreenshot(row))
        return;
    photo.isScreenshot = true;
    copyTo(Kind::Screenshots, photo);
}

bool SmartAlbumRules::isScreenshot(const Row &row) const
{
    constexpr int notKnown = -1;
    const int thumbnailHeight = row.int32(camera_roll::embeddedThumbnailHeight);
    const int savedAs = row.int32(camera_roll::savedAssetType);
    if (device_.ios < Ios::Ios8 || thumbnailHeight == notKnown || savedAs == notKnown)
        return false;
    if (device_.ios < Ios::Ios9)
        return thumbnailHeight == 0 && savedAs == SavedAssetType::Camera &&
               !row.hasText(camera_roll::creatorBundle);
    return row.int32(camera_roll::kindSubtype) == KindSubtype::Screenshot &&
           (savedAs == SavedAssetType::Camera || savedAs == SavedAssetType::CloudLibrary);
}

void SmartAlbumRules::sortAnimated(CPhotoData &photo, const Row &row) const
{
    if (row.int32(camera_roll::playbackStyle) != PlaybackStyle::Animated)
        return;
    photo.isAnimated = true;
    copyTo(Kind::Animated, photo);
}

void SmartAlbumRules::sortPortrait(CPhotoData &photo, const Row &row) const
{
    if (device_.ios < Ios::Ios11)
        return;
    photo.isPortrait = isPortrait(row, camera_roll::depth, device_.ios);
    if (photo.isPortrait)
        copyTo(Kind::Portrait, photo);
}

void SmartAlbumRules::sortSelfie(CPhotoData &photo, const Row &row) const
{
    if (device_.ios < Ios::Ios9 ||
        row.int32(camera_roll::cameraCaptureDevice) != CaptureDevice::FrontCamera)
        return;
    photo.isSelfie = true;
    copyTo(Kind::Selfies, photo);
}

void SmartAlbumRules::sortFavorite(CPhotoData &photo, const Row &row) const
{
    if (device_.ios < Ios::Ios8 || row.int32(camera_roll::favorite) != FavoriteFlag::IsFavorite)
        return;
    photo.isFavorite = true;
    copyTo(Kind::Favorites, photo);
}

} // namespace iosphoto
