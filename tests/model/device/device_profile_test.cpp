#include "model/model_devicephoto_dbmgr.h"
#include "support/case_name.h"

#include <gtest/gtest.h>

using namespace iosphoto::test;

namespace {

struct Device
{
    const char *iosVersion;
    const char *productType;
    bool isCapable;

    std::string name() const { return std::string(productType) + "_on_" + iosVersion; }
    QDevPhotoDbMgr manager() const { return QDevPhotoDbMgr(iosVersion, productType); }
};

std::ostream &operator<<(std::ostream &stream, const Device &device)
{
    return stream << device.productType << " with iOS " << device.iosVersion;
}

} // namespace

class LivePhotoSupport : public testing::TestWithParam<Device>
{
};

TEST_P(LivePhotoSupport, GoesByFamilyModelAndVersion)
{
    EXPECT_EQ(GetParam().manager().isSupportLivePhoto(), GetParam().isCapable);
}

constexpr Device livePhotoDevices[] = {
    // No device below iOS 9.
    {"8.4", "iPhone14,2", false},
    {"8.4", "iPad6,3", false},
    {"8.9.9", "iPhone9,1", false},
    {"9.0", "iPhone9,1", true},
    {"9", "iPhone9,1", true},
    // iPhones from 8,1 on, three of which had to wait for an update.
    {"15.0", "iPhone7,2", false},
    {"15.0", "iPhone8", false},
    {"9.3", "iPhone8,1", false},
    {"10.3", "iPhone8,1", false},
    {"11.0", "iPhone8,1", true},
    {"9.3", "iPhone8,2", false},
    {"9.9", "iPhone8,2", false},
    {"10.0", "iPhone8,2", true},
    {"10.3", "iPhone8,2", true},
    {"9.3", "iPhone8,4", false},
    {"10.3", "iPhone8,4", false},
    {"11.0", "iPhone8,4", true},
    {"9.0", "iPhone8,3", true},
    {"9.0", "iPhone8,5", true},
    {"15.0", "iPhone14,2", true},
    // iPads from 6,3 on, but for 6,7.
    {"12.0", "iPad6,2", false},
    {"12.0", "iPad5,9", false},
    {"9.0", "iPad6,3", true},
    {"12.0", "iPad6,4", true},
    {"12.0", "iPad6,7", false},
    {"18.0", "iPad6,7", false},
    {"12.0", "iPad6,8", true},
    {"12.0", "iPad6,11", true},
    {"9.0", "iPad8,1", true},
    // Other families.
    {"15.0", "iPod9,1", false},
    {"15.0", "Watch9,1", false},
    {"15.0", "iP", false},
    {"15.0", "", false},
};

INSTANTIATE_TEST_SUITE_P(Devices, LivePhotoSupport, testing::ValuesIn(livePhotoDevices),
                         NameOfCase());

class PanoramaSupport : public testing::TestWithParam<Device>
{
};

TEST_P(PanoramaSupport, GoesByFamilyModelAndVersion)
{
    EXPECT_EQ(GetParam().manager().isSupportPanorama(), GetParam().isCapable);
}

constexpr Device panoramaDevices[] = {
    {"5.1.1", "iPhone4,1", false}, {"5.9", "iPad2,1", false},     {"6.0", "iPhone3,1", true},
    {"6", "iPhone3,1", true},      {"6.0", "iPhone3,3", true},    {"6.0", "iPhone3,0", false},
    {"6.0", "iPhone2,1", false},   {"15.0", "iPhone2,1", false},  {"15.0", "iPhone14,2", true},
    {"6.0", "iPad1,1", true},      {"15.0", "iPad", true},        {"15.0", "iPod9,1", false},
    {"15.0", "", false},           {"15.0", "AppleTV9,1", false},
};

INSTANTIATE_TEST_SUITE_P(Devices, PanoramaSupport, testing::ValuesIn(panoramaDevices),
                         NameOfCase());

class ProRawAndProResSupport : public testing::TestWithParam<Device>
{
};

TEST_P(ProRawAndProResSupport, GoesByTheModelsNumbersAlone)
{
    EXPECT_EQ(GetParam().manager().isSupportProRAWAndProRes(), GetParam().isCapable);
}

constexpr Device proDevices[] = {
    {"15.0", "iPhone14,2", true},  {"15.0", "iPhone14,3", true},   {"16.0", "iPhone15,2", true},
    {"16.0", "iPhone15,3", true},  {"15.0", "iPhone14,1", false},  {"15.0", "iPhone14,4", false},
    {"16.0", "iPhone15,1", false}, {"16.0", "iPhone15,4", false},  {"16.0", "iPhone13,2", false},
    {"17.0", "iPhone16,2", false}, {"15.0", "iPhone14,20", false}, {"6.0", "iPhone14,2", true},
    {"", "iPhone14,2", true},      {"15.0", "iPad14,2", true},     {"15.0", "14,2", true},
    {"15.0", "", false},
};

INSTANTIATE_TEST_SUITE_P(Devices, ProRawAndProResSupport, testing::ValuesIn(proDevices),
                         NameOfCase());

TEST(DeviceSupport, FollowsTheVersionThatTheManagerHoldsNow)
{
    QDevPhotoDbMgr manager("8.4", "iPhone9,1");
    EXPECT_FALSE(manager.isSupportLivePhoto());

    manager.SetProductVer("9.0");

    EXPECT_TRUE(manager.isSupportLivePhoto());
}
