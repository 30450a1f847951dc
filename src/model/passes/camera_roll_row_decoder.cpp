#include "model/passes/camera_roll_row_decoder.h"

#include "model/bursts.h"
#include "model/database_codes.h"
#include "model/display_texts.h"
#include "model/passes/camera_roll_columns.h"

#include <QFileInfo>

namespace iosphoto {

namespace {

constexpr AssetRowLayout layout = {
    column(cameraRollColumns, "ZDURATION"),
    camera_roll::created,
    camera_roll::modified,
    camera_roll::added,
    column(cameraRollColumns, "ZVIDEOCPDURATIONTIMESCALE"),
    column(cameraRollColumns, "ZUUID"),
    column(cameraRollColumns, "albumuuid"),
    column(cameraRollColumns, "ZHASADJUSTMENTS"),
    column(cameraRollColumns, "ZADJUSTMENTSSTATE"),
    column(cameraRollColumns, "ZEDITORBUNDLEID"),
    false, // fractionalDates
    0,     // firstKnownDate
    "",    // missingAlbumUuid
};

void readBadge(CPhotoData &photo, const Row &row)
{
    const int badge = row.int32(camera_roll::packedBadgeAttributes);
    photo.isProRes = badge == Badge::ProRes;
    photo.isRaw =
        badge == Badge::Raw &&
        QFileInfo(photo.fileName).suffix().compare(QLatin1String("DNG"), Qt::CaseInsensitive) == 0;
}

} // namespace

CameraRollRowDecoder::CameraRollRowDecoder(const DeviceProfile &device)
    : device_(device), shared_(layout, device, translated(display_text::cameraRoll))
{
}

std::unique_ptr<CPhotoData> CameraRollRowDecoder::decode(const Row &row)
{
    std::unique_ptr<CPhotoData> photo = shared_.decode(row);
    photo->assetId = row.int32(camera_roll::assetId);
    readBurst(*photo, row);
    if (device_.ios >= IosGeneration::Ios9)
        photo->isHidden = row.int32(camera_roll::hidden) == HiddenFlag::IsHidden;
    if (device_.proRawAndProRes)
        readBadge(*photo, row);
    return photo;
}

void CameraRollRowDecoder::readBurst(CPhotoData &photo, const Row &row)
{
    const int pickType = row.int32(camera_roll::burstPickType);
    photo.isBurst = pickType != BurstPickType::NoBurst;
    photo.isBurstPick = standsForBurst(pickType) ? 1 : 0;
    if (photo.isBurst && device_.ios >= IosGeneration::Ios8)
        photo.burstUuid = burstUuid_.of(row.cString(camera_roll::burstUuid));
}

} // namespace iosphoto
