#include "model/passes/camera_roll_pass.h"

#include "model/bursts.h"
#include "model/passes/asset_trace.h"
#include "model/passes/camera_roll_columns.h"
#include "model/passes/camera_roll_row_decoder.h"
#include "model/passes/pass_run.h"
#include "model/passes/smart_album_rules.h"
#include "records/record_ownership.h"

namespace iosphoto {

namespace {

/// Reads the rows of the device's own photos and hands each record to the albums it belongs to.
class CameraRollPass
{
public:
    explicit CameraRollPass(const PassContext &context)
        : albums_(context.albums), device_(context.device), decoder_(context.device),
          rules_(context.albums, context.device, context.now)
    {
    }

    void take(const Row &row)
    {
        std::unique_ptr<CPhotoData> photo = decoder_.decode(row);
        traceIfWatched(*photo, row);
        const int pickType = row.int32(camera_roll::burstPickType);
        if (rules_.sort(*photo, row) && isInCameraRoll(*photo, pickType))
            append(albums_.front(), std::move(photo));
    }

private:
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
    CameraRollRowDecoder decoder_;
    SmartAlbumRules rules_;
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
