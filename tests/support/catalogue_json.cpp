#include "support/catalogue_json.h"

namespace iosphoto::test {

namespace {

nlohmann::json asJson(const CPhotoData &photo)
{
    return {
        {"thumbnailIndex", photo.thumbnailIndex},
        {"assetId", photo.assetId},
        {"width", photo.width},
        {"height", photo.height},
        {"extraValue", photo.extraValue},
        {"duration", photo.duration},
        {"fileSize", photo.fileSize},
        {"createdTime", photo.createdTime},
        {"modifiedTime", photo.modifiedTime},
        {"addedTime", photo.addedTime},
        {"albumName", photo.albumName.toStdString()},
        {"fileName", photo.fileName.toStdString()},
        {"directory", photo.directory.toStdString()},
        {"sourceFileName", photo.sourceFileName.toStdString()},
        {"extraText1", photo.extraText1.toStdString()},
        {"dateText", photo.dateText.toStdString()},
        {"uuid", photo.uuid},
        {"albumUuid", photo.albumUuid},
        {"isBurstPick", photo.isBurstPick},
        {"burstCount", photo.burstCount},
        {"isVideo", photo.isVideo},
        {"isTimelapse", photo.isTimelapse},
        {"isSlomo", photo.isSlomo},
        {"isScreenRecording", photo.isScreenRecording},
        {"isPanorama", photo.isPanorama},
        {"isBurst", photo.isBurst},
        {"isDeleted", photo.isDeleted},
        {"isScreenshot", photo.isScreenshot},
        {"isLivePhoto", photo.isLivePhoto},
        {"isSelfie", photo.isSelfie},
        {"isFavorite", photo.isFavorite},
        {"isPortrait", photo.isPortrait},
        {"isAnimated", photo.isAnimated},
        {"inUserAlbum", photo.inUserAlbum},
        {"isValid", photo.isValid},
        {"isEdited", photo.isEdited},
        {"burstUuid", photo.burstUuid.toStdString()},
        {"extraText2", photo.extraText2.toStdString()},
        {"isRaw", photo.isRaw},
        {"isProRes", photo.isProRes},
        {"isHidden", photo.isHidden},
    };
}

} // namespace

nlohmann::json asJson(const CAlbumGroup &album)
{
    nlohmann::json photos = nlohmann::json::array();
    for (const CPhotoData *photo : album.photos)
        photos.push_back(asJson(*photo));
    return {
        {"albumIndex", album.albumIndex},     {"albumCount", album.albumCount},
        {"albumKind", album.albumKind},       {"albumName", album.albumName.toStdString()},
        {"albumUuid", album.albumUuid},       {"albumId", album.albumId},
        {"isSmartAlbum", album.isSmartAlbum}, {"photos", photos},
    };
}

} // namespace iosphoto::test
