#include "model/passes/camera_roll_pass.h"

#include "model/bursts.h"
#include "model/database_codes.h"
#include "model/display_texts.h"
#include "model/passes/asset_row_decoder.h"
#include "model/passes/asset_trace.h"
#include "model/passes/camera_roll_columns.h"
#include "model/passes/pass_run.h"
#include "model/passes/smart_album_rules.h"
#include "records/record_ownership.h"

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

/// Reads the rows of the device's own photos and hands each record to the albums it belongs to.
class CameraRollPass
{
public:
    explicit CameraRollPass(const PassContext &context)
        : albums_(context.albums), device_(context.device),
          decoder_(layout, context.device, translated(display_text::cameraRoll)),
          rules_(context.albums, context.device, context.now)
    {
    }

    void take(const Row &row)
    {
        std::unique_ptr<CPhotoData> photo = decoder_.decode(row);
        photo->assetId = row.int32(camera_roll::assetId);
        traceIfWatched(*photo, row);
        const int pickType = row.int32(camera_roll::burstPickType);
        readBurst(*photo, row, pickType);
        if (device_.ios >= IosGeneration::Ios9)
            photo->isHidden = row.int32(camera_roll::hidden) == HiddenFlag::IsHidden;
        if (device_.proRawAndProRes)
            readBadge(*photo, row);
        if (rules_.sort(*photo, row) && isInCameraRoll(*photo, pickType))
            append(albums_.front(), std::move(photo));
    }

private:
    void readBurst(CPhotoData &photo, const Row &row, int pickType)
    {
        photo.isBurst = pickType != BurstPickType::NoBurst;
        photo.isBurstPick = standsForBurst(pickType) ? 1 : 0;
        if (photo.isBurst && device_.ios >= IosGeneration::Ios8)
            photo.burstUuid = burstUuid_.of(row.cString(camera_roll::burstUuid));
    }

    static void readBadge(CPhotoData &photo, const Row &row)
    {
        const int badge = row.int32(camera_roll::packedBadgeAttributes);
        photo.isProRes = badge == Badge::ProRes;
        photo.isRaw =
            badge == Badge::Raw &&
            QFileInfo(photo.fileName).suffix().compare(QLatin1String("DNG"), Qt::CaseInsensitive) ==
                0;
    }

    bool isInCameraRoll(const CPhotoData &photo, int pickType) const
    {
        if (photo.fileName.isEmpty() || albums_.empty())
            return false;
        if (device_.ios < IosGeneration::Ios8)
            return true;
        return !photo.isDeleted && !photo.isHidden && isShownInCameraRoll(pickType);
    }

    std::vector<CAlbumGroup> &albums_;
    DeviceProfile device_;
    AssetRowDecoder decoder_;
    SmartAlbumRules rules_;
    RepeatedText burstUuid_;
};

} // namespace

int readCameraRoll(const PassContext &context)
{
    return runPass(context, Pass::CameraRoll, [&](PassRun &run) {
        CameraRollPass pass(context);
        return run.readRows(cameraRollStatements, [&](const Row &row) { pass.take(row); });
    });
}

} // namespace iosphoto
