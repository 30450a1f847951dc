#ifndef IOSPHOTO_TOOL_TRAITS_H
#define IOSPHOTO_TOOL_TRAITS_H

#include "ios_photo.h"

namespace iosphoto::tool {

/// Something that a photo is or has: its flag in the record, its key in documents, and the word for
/// it in tables, which leave out what their albums say.
struct Trait
{
    bool CPhotoData::*flag;
    const char *key;
    const char *word;
};

constexpr Trait traits[] = {
    {&CPhotoData::isVideo, "isVideo", "video"},
    {&CPhotoData::isTimelapse, "isTimelapse", "time-lapse"},
    {&CPhotoData::isSlomo, "isSlomo", "slo-mo"},
    {&CPhotoData::isScreenRecording, "isScreenRecording", "screen recording"},
    {&CPhotoData::isPanorama, "isPanorama", "panorama"},
    {&CPhotoData::isBurst, "isBurst", "burst"},
    {&CPhotoData::isScreenshot, "isScreenshot", "screenshot"},
    {&CPhotoData::isLivePhoto, "isLivePhoto", "live"},
    {&CPhotoData::isSelfie, "isSelfie", "selfie"},
    {&CPhotoData::isPortrait, "isPortrait", "portrait"},
    {&CPhotoData::isAnimated, "isAnimated", "animated"},
    {&CPhotoData::isRaw, "isRaw", "RAW"},
    {&CPhotoData::isProRes, "isProRes", "ProRes"},
    {&CPhotoData::isFavorite, "isFavorite", "favorite"},
    {&CPhotoData::isEdited, "isEdited", "edited"},
    {&CPhotoData::isHidden, "isHidden", "hidden"},
    {&CPhotoData::isDeleted, "isDeleted", "deleted"},
    {&CPhotoData::inUserAlbum, "isInPhotoStream", ""},
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_TRAITS_H
