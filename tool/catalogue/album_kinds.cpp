#include "catalogue/album_kinds.h"

#include "model/display_texts.h"
#include "text/translate.h"

namespace iosphoto::tool {

namespace {

using Kind = AlbumKind;

struct KindNames
{
    Kind::Code kind;
    const char *machine;
    const char *english;
    const char *field = "albums"; ///< that decides what is in it
};

constexpr KindNames names[] = {
    {Kind::CameraRoll, "camera-roll", translatable("Camera Roll")},
    {Kind::PhotoStream, "photo-stream", translatable("My Photo Stream")},
    {Kind::PhotoLibrary, "photo-library", translatable("Photo Library")},
    {Kind::Videos, "videos", translatable("Videos"), "isVideo"},
    {Kind::TimeLapse, "time-lapse", translatable("Time-lapse"), "isTimelapse"},
    {Kind::SloMo, "slo-mo", translatable("Slo-mo"), "isSlomo"},
    {Kind::Panoramas, "panoramas", translatable("Panoramas"), "isPanorama"},
    {Kind::Bursts, "bursts", translatable("Bursts"), "isBurst"},
    {Kind::RecentlyDeleted, "recently-deleted", translatable("Recently Deleted"), "isDeleted"},
    {Kind::Screenshots, "screenshots", translatable("Screenshots"), "isScreenshot"},
    {Kind::Favorites, "favorites", translatable("Favorites"), "isFavorite"},
    {Kind::Selfies, "selfies", translatable("Selfies"), "isSelfie"},
    {Kind::LivePhotos, "live-photos", translatable("Live Photos"), "isLivePhoto"},
    {Kind::Portrait, "portrait", translatable("Portrait"), "isPortrait"},
    {Kind::Animated, "animated", translatable("Animated"), "isAnimated"},
    {Kind::User, "user", translatable("User album")},
    {Kind::ScreenRecordings, "screen-recordings", translatable("Screen Recordings"),
     "isScreenRecording"},
    {Kind::Raw, "raw", translatable("RAW"), "isRaw"},
    {Kind::ProRes, "prores", translatable("ProRes"), "isProRes"},
    {Kind::Hidden, "hidden", translatable("Hidden"), "isHidden"},
    {Kind::AllDeleted, "all-deleted", translatable("All deleted"), "isDeleted"},
};

const KindNames &namesOf(const CAlbumGroup &album)
{
    for (const KindNames &row : names)
        if (row.kind == album.albumKind)
            return row;
    static constexpr KindNames unknown = {Kind::Code(0), "unknown", translatable("Unknown")};
    return unknown;
}

std::string kindText(const CAlbumGroup &album, Language language)
{
    if (isUntitled(album))
        return translateTo(language, "Untitled album");
    const std::string kind = translateTerm(namesOf(album).english, language);
    return collectsFromAlbums(album) ? translateTo(language, "{0} from albums", kind) : kind;
}

struct ImportedName
{
    const char *title; ///< in the database
    const char *english;
};

/// The albums that a computer imports are of the table, but nobody gave them their titles.
constexpr ImportedName importedNames[] = {
    {display_text::importedCameraRoll, translatable("Camera Roll from computer")},
    {display_text::importedPhotoLibrary, translatable("Photo Library from computer")},
};

std::string nameIn(Language language, const CAlbumGroup &album)
{
    if (album.albumKind != Kind::User)
        return kindText(album, language);
    for (const ImportedName &name : importedNames)
        if (album.albumName == QString::fromUtf8(name.title))
            return translateTo(language, name.english);
    return album.albumName.toStdString();
}

bool isSame(const std::string &name, const QString &wanted)
{
    return wanted.compare(QString::fromStdString(name), Qt::CaseInsensitive) == 0;
}

} // namespace

const char *fieldBehindAlbum(const std::string &name)
{
    const QString wanted = QString::fromStdString(name);
    for (const KindNames &row : names)
        if (isSame(row.machine, wanted) || isSame(row.english, wanted) ||
            isSame(translateTerm(row.english), wanted))
            return row.field;
    return "albums";
}

bool isOfTheTable(const CAlbumGroup &album)
{
    return !album.albumUuid.empty();
}

bool isUntitled(const CAlbumGroup &album)
{
    return album.albumKind == Kind::PhotoLibrary && isOfTheTable(album);
}

bool collectsFromAlbums(const CAlbumGroup &album)
{
    return !album.isSmartAlbum && !isOfTheTable(album) && album.albumKind != Kind::CameraRoll &&
           album.albumKind != Kind::PhotoLibrary;
}

std::string kindName(const CAlbumGroup &album)
{
    return isUntitled(album) ? "untitled" : namesOf(album).machine;
}

std::string englishKind(const CAlbumGroup &album)
{
    return kindText(album, Language::English);
}

std::string shownKind(const CAlbumGroup &album)
{
    return kindText(album, currentLanguage());
}

std::string shownName(const CAlbumGroup &album)
{
    return nameIn(currentLanguage(), album);
}

std::string englishName(const CAlbumGroup &album)
{
    return nameIn(Language::English, album);
}

} // namespace iosphoto::tool
