#include "catalogue/album_kinds.h"

#include "language/said.h"

namespace iosphoto::tool {

namespace {

using Kind = AlbumKind;

struct KindNames
{
    Kind::Code kind;
    const char *machine;
    const char *english;
};

constexpr KindNames names[] = {
    {Kind::CameraRoll, "camera-roll", "Camera Roll"},
    {Kind::PhotoStream, "photo-stream", "My Photo Stream"},
    {Kind::PhotoLibrary, "photo-library", "Photo Library"},
    {Kind::Videos, "videos", "Videos"},
    {Kind::TimeLapse, "time-lapse", "Time-lapse"},
    {Kind::SloMo, "slo-mo", "Slo-mo"},
    {Kind::Panoramas, "panoramas", "Panoramas"},
    {Kind::Bursts, "bursts", "Bursts"},
    {Kind::RecentlyDeleted, "recently-deleted", "Recently Deleted"},
    {Kind::Screenshots, "screenshots", "Screenshots"},
    {Kind::Favorites, "favorites", "Favorites"},
    {Kind::Selfies, "selfies", "Selfies"},
    {Kind::LivePhotos, "live-photos", "Live Photos"},
    {Kind::Portrait, "portrait", "Portrait"},
    {Kind::Animated, "animated", "Animated"},
    {Kind::User, "user", "User album"},
    {Kind::ScreenRecordings, "screen-recordings", "Screen Recordings"},
    {Kind::Raw, "raw", "RAW"},
    {Kind::ProRes, "prores", "ProRes"},
    {Kind::Hidden, "hidden", "Hidden"},
    {Kind::AllDeleted, "all-deleted", "All deleted"},
};

const KindNames &namesOf(const CAlbumGroup &album)
{
    for (const KindNames &row : names)
        if (row.kind == album.albumKind)
            return row;
    static constexpr KindNames unknown = {Kind::Code(0), "unknown", "Unknown"};
    return unknown;
}

} // namespace

bool isOfTheTable(const CAlbumGroup &album)
{
    return !album.albumUuid.empty();
}

bool collectsFromAlbums(const CAlbumGroup &album)
{
    return !album.isSmartAlbum && !isOfTheTable(album) && album.albumKind != Kind::CameraRoll &&
           album.albumKind != Kind::PhotoLibrary;
}

std::string kindName(const CAlbumGroup &album)
{
    const bool isUntitled = album.albumKind == Kind::PhotoLibrary && isOfTheTable(album);
    return isUntitled ? "untitled" : namesOf(album).machine;
}

std::string englishKind(const CAlbumGroup &album)
{
    if (album.albumKind == Kind::PhotoLibrary && isOfTheTable(album))
        return "Untitled album";
    const std::string english = namesOf(album).english;
    return collectsFromAlbums(album) ? english + " from albums" : english;
}

std::string englishName(const CAlbumGroup &album)
{
    return album.albumKind == Kind::User ? album.albumName.toStdString() : englishKind(album);
}

std::string shownKind(const CAlbumGroup &album)
{
    return translated(englishKind(album));
}

std::string shownName(const CAlbumGroup &album)
{
    return album.albumKind == Kind::User ? album.albumName.toStdString() : shownKind(album);
}

} // namespace iosphoto::tool
