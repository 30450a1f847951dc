#ifndef IOSPHOTO_TOOL_PHOTO_KINDS_H
#define IOSPHOTO_TOOL_PHOTO_KINDS_H

#include "catalogue/assets.h"
#include "ios_photo.h"
#include "text/translate.h"

#include <functional>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// Whether an asset is a video, of whatever sort; otherwise it is a photo.
bool isVideo(const Asset &asset);

/// Whether an asset is of a kind.
using KindTest = std::function<bool(const Asset &)>;

/// A kind of photos, as far as somebody may ask for it.
struct PhotoKind
{
    const char *name; ///< in options and documents, such as "slo-mo"
    const char *word; ///< in tables
    const char *key;  ///< of the field that tells it
    KindTest test;
};

/// "photo", "video" (of whatever sort), then every trait that has a name. One asset may be of
/// several.
const std::vector<PhotoKind> &photoKinds();

std::vector<std::string> kindNames();

/// The kind that somebody names, in the singular or plural and whatever case of letters:
/// "screenshot" or "Screenshots". Null for an unknown one.
const PhotoKind *findKind(const std::string &name);

/// Something that a photo is or has: its flag in the record, its key in documents, its name in
/// options, and the word for it in tables. Those two are empty for what albums say.
struct Trait
{
    bool CPhotoData::*flag;
    const char *key;
    const char *name;
    const char *word;
};

constexpr Trait traits[] = {
    {&CPhotoData::isVideo, "isVideo", "video", translatable("video")},
    {&CPhotoData::isTimelapse, "isTimelapse", "time-lapse", translatable("time-lapse")},
    {&CPhotoData::isSlomo, "isSlomo", "slo-mo", translatable("slo-mo")},
    {&CPhotoData::isScreenRecording, "isScreenRecording", "screen-recording",
     translatable("screen recording")},
    {&CPhotoData::isPanorama, "isPanorama", "panorama", translatable("panorama")},
    {&CPhotoData::isBurst, "isBurst", "burst", translatable("burst")},
    {&CPhotoData::isScreenshot, "isScreenshot", "screenshot", translatable("screenshot")},
    {&CPhotoData::isLivePhoto, "isLivePhoto", "live", translatable("live")},
    {&CPhotoData::isSelfie, "isSelfie", "selfie", translatable("selfie")},
    {&CPhotoData::isPortrait, "isPortrait", "portrait", translatable("portrait")},
    {&CPhotoData::isAnimated, "isAnimated", "animated", translatable("animated")},
    {&CPhotoData::isRaw, "isRaw", "raw", translatable("RAW")},
    {&CPhotoData::isProRes, "isProRes", "prores", translatable("ProRes")},
    {&CPhotoData::isFavorite, "isFavorite", "favorite", translatable("favorite")},
    {&CPhotoData::isEdited, "isEdited", "edited", translatable("edited")},
    {&CPhotoData::isHidden, "isHidden", "hidden", translatable("hidden")},
    {&CPhotoData::isDeleted, "isDeleted", "deleted", translatable("deleted")},
    {&CPhotoData::inUserAlbum, "isInPhotoStream", "", ""},
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PHOTO_KINDS_H
