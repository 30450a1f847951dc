#include "model/default_albums.h"

#include "model/album_names.h"
#include "model/model_devicephoto_dbmgr.h"
#include "no_throw.h"

#include <iterator>

namespace iosphoto {

namespace {

using Kind = AlbumKind;
using Ios = IosGeneration;

/// What an album's being there depends on besides the iOS version.
using Capability = bool DeviceProfile::*;
constexpr Capability any = nullptr;

struct BuiltInAlbum
{
    Kind::Code kind;
    const char *name;
    bool isSmart;
    Ios from;
    Capability capability;

    bool isOn(const DeviceProfile &device) const
    {
        return device.ios >= from && (capability == any || device.*capability);
    }
};

constexpr auto live = &DeviceProfile::livePhotos;
constexpr auto panorama = &DeviceProfile::panoramas;
constexpr auto pro = &DeviceProfile::proRawAndProRes;

// clang-format off
constexpr BuiltInAlbum defaultAlbums[] = {
    // kind                 display name                    smart   from         on models that take
    {Kind::CameraRoll,       album_names::cameraRoll,       false,  Ios::Oldest, any},
    {Kind::PhotoLibrary,     album_names::photoLibrary,     false,  Ios::Oldest, any},
    {Kind::Videos,           album_names::videos,           true,   Ios::Oldest, any},
    {Kind::Selfies,          album_names::selfies,          true,   Ios::Ios9,   any},
    {Kind::LivePhotos,       album_names::livePhotos,       true,   Ios::Oldest, live},
    {Kind::Portrait,         album_names::portrait,         true,   Ios::Ios11,  any},
    {Kind::Panoramas,        album_names::panoramas,        true,   Ios::Oldest, panorama},
    {Kind::TimeLapse,        album_names::timeLapse,        true,   Ios::Ios8,   any},
    {Kind::SloMo,            album_names::sloMo,            true,   Ios::Ios8,   any},
    {Kind::Bursts,           album_names::bursts,           true,   Ios::Ios8,   any},
    {Kind::Screenshots,      album_names::screenshots,      true,   Ios::Oldest, any},
    {Kind::Animated,         album_names::animated,         true,   Ios::Ios11,  any},
    {Kind::ScreenRecordings, album_names::screenRecordings, true,   Ios::Ios11,  any},
    {Kind::Favorites,        album_names::favorites,        true,   Ios::Ios8,   any},
    {Kind::RecentlyDeleted,  album_names::recentlyDeleted,  true,   Ios::Ios8,   any},
    {Kind::AllDeleted,       album_names::allDeleted,       true,   Ios::Ios8,   any},
    {Kind::Raw,              album_names::raw,              true,   Ios::Oldest, pro},
    {Kind::ProRes,           album_names::proRes,           true,   Ios::Oldest, pro},
    {Kind::Hidden,           album_names::hidden,           true,   Ios::Ios9,   any},
};

constexpr BuiltInAlbum collectingAlbums[] = {
    {Kind::Selfies,          album_names::selfies,          false,  Ios::Ios9,   any},
    {Kind::Portrait,         album_names::portrait,         false,  Ios::Ios11,  any},
    {Kind::Panoramas,        album_names::panoramas,        false,  Ios::Ios6,   any},
    {Kind::Screenshots,      album_names::screenshots,      false,  Ios::Oldest, any},
};
// clang-format on

QString displayName(const BuiltInAlbum &album, const DeviceProfile &device)
{
    const bool oldName = album.kind == Kind::Screenshots && device.ios < Ios::Ios9;
    return QDevPhotoDbMgr::tr(oldName ? album_names::screenshotsBeforeIos9 : album.name);
}

template <std::size_t count>
void appendAlbums(std::vector<CAlbumGroup> &albums, const BuiltInAlbum (&table)[count],
                  const DeviceProfile &device)
{
    std::vector<CAlbumGroup> added;
    for (const BuiltInAlbum &row : table) {
        if (!row.isOn(device))
            continue;
        CAlbumGroup album;
        album.albumIndex = static_cast<std::int32_t>(albums.size() + added.size());
        album.albumKind = row.kind;
        album.albumName = displayName(row, device);
        album.isSmartAlbum = row.isSmart;
        added.push_back(std::move(album));
    }
    albums.reserve(albums.size() + added.size());
    albums.insert(albums.end(), std::make_move_iterator(added.begin()),
                  std::make_move_iterator(added.end()));
}

} // namespace

void appendDefaultAlbums(std::vector<CAlbumGroup> &albums, const DeviceProfile &device)
{
    appendAlbums(albums, defaultAlbums, device);
}

void appendCollectingAlbums(std::vector<CAlbumGroup> &albums, const DeviceProfile &device)
{
    appendAlbums(albums, collectingAlbums, device);
}

} // namespace iosphoto

int QDevPhotoDbMgr::SetDefaultAlbum()
{
    return iosphoto::withoutThrowing([this] {
        appendDefaultAlbums(albums, iosphoto::DeviceProfile(iosVersion, productType));
        return 0;
    });
}
