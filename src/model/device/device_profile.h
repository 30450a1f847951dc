#ifndef IOSPHOTO_DEVICE_PROFILE_H
#define IOSPHOTO_DEVICE_PROFILE_H

#include "model/device/ios_generation.h"

#include <QString>

#include <string>

namespace iosphoto {

/// Everything that a pass asks about the device, answered once when the pass starts.
struct DeviceProfile
{
    DeviceProfile(const std::string &iosVersion, const QString &productType);

    IosGeneration ios;
    bool livePhotos;      ///< takes Live Photos
    bool panoramas;       ///< takes panoramas
    bool proRawAndProRes; ///< takes ProRAW photos and ProRes videos
    bool ios7SubTypes;    ///< new enough a model for iOS 7 to note what kind of photo an asset is
};

} // namespace iosphoto

#endif // IOSPHOTO_DEVICE_PROFILE_H
