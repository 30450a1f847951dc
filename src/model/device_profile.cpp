#include "model/device_profile.h"

#include "model/model_devicephoto_dbmgr.h"

namespace iosphoto {

namespace {

enum class Family { IPhone, IPad, Other };

/// The third character tells the families apart: "iPhone", "iPad", "iPod".
Family family(const QString &productType)
{
    if (productType.size() < 3)
        return Family::Other;
    const QChar letter = productType.at(2);
    if (letter == QLatin1Char('h'))
        return Family::IPhone;
    return letter == QLatin1Char('a') ? Family::IPad : Family::Other;
}

int compareModel(const QString &productType, const char *model)
{
    return cmpProductVersion(productType, QLatin1String(model));
}

/// The first model with Live Photos, and those of its time that had to wait for an iOS update.
constexpr char firstLivePhotoIPhone[] = "iPhone8,1";
constexpr struct
{
    const char *model;
    IosGeneration from;
} lateLivePhotoIPhones[] = {
    {"iPhone8,1", IosGeneration::Ios11},
    {"iPhone8,2", IosGeneration::Ios10},
    {"iPhone8,4", IosGeneration::Ios11},
};

bool iPhoneTakesLivePhotos(IosGeneration ios, const QString &productType)
{
    if (compareModel(productType, firstLivePhotoIPhone) < 0)
        return false;
    for (const auto &late : lateLivePhotoIPhones)
        if (compareModel(productType, late.model) == 0)
            return ios >= late.from;
    return true;
}

constexpr char firstLivePhotoIPad[] = "iPad6,3";
/// The model stands twice: the list has two places for it, and the second changes nothing.
constexpr const char *iPadsWithoutLivePhotos[] = {"iPad6,7", "iPad6,7"};

bool iPadTakesLivePhotos(const QString &productType)
{
    for (const char *model : iPadsWithoutLivePhotos)
        if (compareModel(productType, model) == 0)
            return false;
    return compareModel(productType, firstLivePhotoIPad) >= 0;
}

bool takesLivePhotos(IosGeneration ios, const QString &productType)
{
    if (ios < IosGeneration::Ios9)
        return false;
    switch (family(productType)) {
    case Family::IPhone:
        return iPhoneTakesLivePhotos(ios, productType);
    case Family::IPad:
        return iPadTakesLivePhotos(productType);
    case Family::Other:
        break;
    }
    return false;
}

constexpr char firstPanoramaIPhone[] = "iPhone3,1";

bool takesPanoramas(IosGeneration ios, const QString &productType)
{
    if (ios < IosGeneration::Ios6)
        return false;
    switch (family(productType)) {
    case Family::IPhone:
        return compareModel(productType, firstPanoramaIPhone) >= 0;
    case Family::IPad:
        return true;
    case Family::Other:
        break;
    }
    return false;
}

constexpr const char *proModels[] = {"iPhone14,2", "iPhone14,3", "iPhone15,2", "iPhone15,3"};

/// Goes by the numbers alone: a tablet of the same numbers passes too.
bool takesProRawAndProRes(const QString &productType)
{
    for (const char *model : proModels)
        if (compareModel(productType, model) == 0)
            return true;
    return false;
}

constexpr char firstModelWithIos7SubTypes[] = "iPhone4,1";

} // namespace

DeviceProfile::DeviceProfile(const std::string &iosVersion, const QString &productType)
    : ios(iosGeneration(iosVersion)), livePhotos(takesLivePhotos(ios, productType)),
      panoramas(takesPanoramas(ios, productType)),
      proRawAndProRes(takesProRawAndProRes(productType)),
      ios7SubTypes(compareModel(productType, firstModelWithIos7SubTypes) >= 0)
{
}

} // namespace iosphoto

using iosphoto::DeviceProfile;

bool QDevPhotoDbMgr::isSupportLivePhoto() const
{
    return DeviceProfile(iosVersion, productType).livePhotos;
}

bool QDevPhotoDbMgr::isSupportPanorama() const
{
    return DeviceProfile(iosVersion, productType).panoramas;
}

bool QDevPhotoDbMgr::isSupportProRAWAndProRes() const
{
    return DeviceProfile(iosVersion, productType).proRawAndProRes;
}
