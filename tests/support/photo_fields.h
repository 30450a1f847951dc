/// The fields of a photo record as a list, for tests that compare whole records.
#ifndef IOSPHOTO_TESTS_PHOTO_FIELDS_H
#define IOSPHOTO_TESTS_PHOTO_FIELDS_H

#include "ios_photo.h"

#include <gtest/gtest.h>

namespace iosphoto::test {

/// Calls `visit` with the name of each field and the pointer to it. The thumbnail is left out: a
/// picture needs an application object.
template <typename Visit>
void visitPhotoFields(Visit visit)
{
    visit("thumbnailIndex", &CPhotoData::thumbnailIndex);
    visit("assetId", &CPhotoData::assetId);
    visit("width", &CPhotoData::width);
    visit("height", &CPhotoData::height);
    visit("extraValue", &CPhotoData::extraValue);
    visit("duration", &CPhotoData::duration);
    visit("fileSize", &CPhotoData::fileSize);
    visit("createdTime", &CPhotoData::createdTime);
    visit("modifiedTime", &CPhotoData::modifiedTime);
    visit("addedTime", &CPhotoData::addedTime);
    visit("albumName", &CPhotoData::albumName);
    visit("fileName", &CPhotoData::fileName);
    visit("directory", &CPhotoData::directory);
    visit("sourceFileName", &CPhotoData::sourceFileName);
    visit("extraText1", &CPhotoData::extraText1);
    visit("dateText", &CPhotoData::dateText);
    visit("uuid", &CPhotoData::uuid);
    visit("albumUuid", &CPhotoData::albumUuid);
    visit("isBurstPick", &CPhotoData::isBurstPick);
    visit("burstCount", &CPhotoData::burstCount);
    visit("isVideo", &CPhotoData::isVideo);
    visit("isTimelapse", &CPhotoData::isTimelapse);
    visit("isSlomo", &CPhotoData::isSlomo);
    visit("isScreenRecording", &CPhotoData::isScreenRecording);
    visit("isPanorama", &CPhotoData::isPanorama);
    visit("isBurst", &CPhotoData::isBurst);
    visit("isDeleted", &CPhotoData::isDeleted);
    visit("isScreenshot", &CPhotoData::isScreenshot);
    visit("isLivePhoto", &CPhotoData::isLivePhoto);
    visit("isSelfie", &CPhotoData::isSelfie);
    visit("isFavorite", &CPhotoData::isFavorite);
    visit("isPortrait", &CPhotoData::isPortrait);
    visit("isAnimated", &CPhotoData::isAnimated);
    visit("inUserAlbum", &CPhotoData::inUserAlbum);
    visit("isValid", &CPhotoData::isValid);
    visit("isEdited", &CPhotoData::isEdited);
    visit("burstUuid", &CPhotoData::burstUuid);
    visit("extraText2", &CPhotoData::extraText2);
    visit("isRaw", &CPhotoData::isRaw);
    visit("isProRes", &CPhotoData::isProRes);
    visit("isHidden", &CPhotoData::isHidden);
}

inline void expectSamePhoto(const CPhotoData &photo, const CPhotoData &expected)
{
    visitPhotoFields(
        [&](const char *name, auto field) { EXPECT_EQ(photo.*field, expected.*field) << name; });
}

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_PHOTO_FIELDS_H
