#ifndef IOSPHOTO_CAMERA_ROLL_ROW_DECODER_H
#define IOSPHOTO_CAMERA_ROLL_ROW_DECODER_H

#include "model/passes/asset_row_decoder.h"

#include <memory>

namespace iosphoto {

/// Makes records of the Camera Roll's rows, without the flags that the rules of the smart albums
/// set.
class CameraRollRowDecoder
{
public:
    explicit CameraRollRowDecoder(const DeviceProfile &device);

    std::unique_ptr<CPhotoData> decode(const Row &row);

private:
    void readBurst(CPhotoData &photo, const Row &row);

    DeviceProfile device_;
    AssetRowDecoder shared_;
    RepeatedText burstUuid_;
};

} // namespace iosphoto

#endif // IOSPHOTO_CAMERA_ROLL_ROW_DECODER_H
