#ifndef IOSPHOTO_TOOL_TRAITS_H
#define IOSPHOTO_TOOL_TRAITS_H

#include "ios_photo.h"

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
    {&CPhotoData::isVideo, "isVideo", "video", "video"},
    {&CPhotoData::isTimelapse, "isTimelapse", "time-lapse", "time-lapse"},
    {&CPhotoData::isSlomo, "isSlomo", "slo-mo", "slo-mo"},
    {&CPhotoData::isScreenRecording, "isScreenRecording", "screen-recording", "screen recording"},
    {&CPhotoData::isPanorama, "isPanorama", "panorama", "panorama"},
    {&CPhotoData::isBurst, "isBurst", "burst", "burst"},
    {&CPhotoData::isScreenshot, "isScreenshot", "screenshot", "screenshot"},
    {&CPhotoData::isLivePhoto, "isLivePhoto", "live", "live"},
    {&CPhotoData::isSelfie, "isSelfie", "selfie", "selfie"},
    {&CPhotoData::isPortrait, "isPortrait", "portrait", "portrait"},
    {&CPhotoData::isAnimated, "isAnimated", "animated", "animated"},
    {&CPhotoData::isRaw, "isRaw", "raw", "RAW"},
    {&CPhotoData::isProRes, "isProRes", "prores", "ProRes"},
    {&CPhotoData::isFavorite, "isFavorite", "favorite", "favorite"},
    {&CPhotoData::isEdited, "isEdited", "edited", "edited"},
    {&CPhotoData::isHidden, "isHidden", "hidden", "hidden"},
    {&CPhotoData::isDeleted, "isDeleted", "deleted", "deleted"},
    {&CPhotoData::inUserAlbum, "isInPhotoStream", "", ""},
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_TRAITS_H
