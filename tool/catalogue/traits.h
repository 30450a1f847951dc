#ifndef IOSPHOTO_TOOL_TRAITS_H
#define IOSPHOTO_TOOL_TRAITS_H

#include "ios_photo.h"
#include "language/said.h"

namespace iosphoto::tool {

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

#endif // IOSPHOTO_TOOL_TRAITS_H
