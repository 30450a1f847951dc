#include "model/device/device_profile.h"

#include "model/device/version_compare.h"

#include <algorithm>
#include <iterator>

namespace iosphoto {

namespace {

template <std::size_t count>
bool isOneOf(const QString &productType, const QStringView (&models)[count])
{
    return std::any_of(std::begin(models), std::end(models),
                       [&](QStringView model) { return compareModels(productType, model) == 0; });
}

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

/// The first model with Live Photos, and those of its time that had to wait for an iOS update.
constexpr QStringView firstLivePhotoIPhone = u"iPhone8,1";
constexpr struct
{
    QStringView model;
    IosGeneration from;
} lateLivePhotoIPhones[] = {
    {u"iPhone8,1", IosGeneration::Ios11},
    {u"iPhone8,2", IosGeneration::Ios10},
    {u"iPhone8,4", IosGeneration::Ios11},
};

bool iPhoneTakesLivePhotos(IosGeneration ios, const QString &productType)
{
    if (compareModels(productType, firstLivePhotoIPhone) < 0)
        return false;
    for (const auto &late : lateLivePhotoIPhones)
        if (compareModels(productType, late.model) == 0)
            return ios >= late.from;
    return true;
}

constexpr QStringView firstLivePhotoIPad = u"iPad6,3";
/// The model stands twice: the list has two places for it, and the second changes nothing.
constexpr QStringView iPadsWithoutLivePhotos[] = {u"iPad6,7", u"iPad6,7"};

bool iPadTakesLivePhotos(const QString &productType)
{
    return !isOneOf(productType, iPadsWithoutLivePhotos) &&
           compareModels(productType, firstLivePhotoIPad) >= 0;
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

constexpr QStringView firstPanoramaIPhone = u"iPhone3,1";

bool takesPanoramas(IosGeneration ios, const QString &productType)
{
    if (ios < IosGeneration::Ios6)
        return false;
    switch (family(productType)) {
    case Family::IPhone:
        return compareModels(productType, firstPanoramaIPhone) >= 0;
    case Family::IPad:
        return true;
    case Family::Other:
        break;
    }
    return false;
}

constexpr QStringView proModels[] = {u"iPhone14,2", u"iPhone14,3", u"iPhone15,2", u"iPhone15,3"};

/// Goes by the numbers alone: a tablet of the same numbers passes too.
bool takesProRawAndProRes(const QString &productType)
{
    return isOneOf(productType, proModels);
}

constexpr QStringView firstModelWithIos7SubTypes = u"iPhone4,1";

} // namespace

DeviceProfile::DeviceProfile(const std::string &iosVersion, const QString &productType)
    : ios(iosGeneration(iosVersion)), livePhotos(takesLivePhotos(ios, productType)),
      panoramas(takesPanoramas(ios, productType)),
      proRawAndProRes(takesProRawAndProRes(productType)),
      ios7SubTypes(compareModels(productType, firstModelWithIos7SubTypes) >= 0)
{
}

} // namespace iosphoto
