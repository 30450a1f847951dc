#include "model/default_albums.h"

#include "model/display_texts.h"

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
    // kind                 display name                     smart   from         on models that take
    {Kind::CameraRoll,       display_text::cameraRoll,       false,  Ios::Oldest, any},
    {Kind::PhotoLibrary,     display_text::photoLibrary,     false,  Ios::Oldest, any},
    {Kind::Videos,           display_text::videos,           true,   Ios::Oldest, any},
    {Kind::Selfies,          display_text::selfies,          true,   Ios::Ios9,   any},
    {Kind::LivePhotos,       display_text::livePhotos,       true,   Ios::Oldest, live},
    {Kind::Portrait,         display_text::portrait,         true,   Ios::Ios11,  any},
    {Kind::Panoramas,        display_text::panoramas,        true,   Ios::Oldest, panorama},
    {Kind::TimeLapse,        display_text::timeLapse,        true,   Ios::Ios8,   any},
    {Kind::SloMo,            display_text::sloMo,            true,   Ios::Ios8,   any},
    {Kind::Bursts,           display_text::bursts,           true,   Ios::Ios8,   any},
    {Kind::Screenshots,      display_text::screenshots,      true,   Ios::Oldest, any},
    {Kind::Animated,         display_text::animated,         true,   Ios::Ios11,  any},
    {Kind::ScreenRecordings, display_text::screenRecordings, true,   Ios::Ios11,  any},
    {Kind::Favorites,        display_text::favorites,        true,   Ios::Ios8,   any},
    {Kind::RecentlyDeleted,  display_text::recentlyDeleted,  true,   Ios::Ios8,   any},
    {Kind::AllDeleted,       display_text::allDeleted,       true,   Ios::Ios8,   any},
    {Kind::Raw,              display_text::raw,              true,   Ios::Oldest, pro},
    {Kind::ProRes,           display_text::proRes,           true,   Ios::Oldest, pro},
    {Kind::Hidden,           display_text::hidden,           true,   Ios::Ios9,   any},
};

constexpr BuiltInAlbum collectingAlbums[] = {
    {Kind::Selfies,          display_text::selfies,          false,  Ios::Ios9,   any},
    {Kind::Portrait,         display_text::portrait,         false,  Ios::Ios11,  any},
    {Kind::Panoramas,        display_text::panoramas,        false,  Ios::Ios6,   any},
    {Kind::Screenshots,      display_text::screenshots,      false,  Ios::Oldest, any},
};
// clang-format on

QString displayName(const BuiltInAlbum &album, const DeviceProfile &device)
{
    const bool oldName = album.kind == Kind::Screenshots && device.ios < Ios::Ios9;
    return translated(oldName ? display_text::screenshotsBeforeIos9 : album.name);
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
