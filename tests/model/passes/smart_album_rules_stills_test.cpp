#include "support/camera_roll_run.h"
#include "support/case_name.h"

#include <gtest/gtest.h>

using namespace iosphoto;
using namespace iosphoto::test;

namespace {

using Kind = AlbumKind;

struct Still
{
    const char *label;
    Schema schema;
    const char *iosVersion;
    const char *productType;
    const char *column;
    int value;
    Kind::Code kind; ///< of the album besides the Camera Roll; CameraRoll for none
    bool CPhotoData::*flag;

    std::string name() const { return std::string(label) + "_on_" + iosVersion; }
};

std::ostream &operator<<(std::ostream &stream, const Still &still)
{
    return stream << still.name();
}

constexpr auto none = Kind::CameraRoll;
constexpr auto panorama = &CPhotoData::isPanorama;
constexpr auto live = &CPhotoData::isLivePhoto;
constexpr auto animated = &CPhotoData::isAnimated;
constexpr auto portrait = &CPhotoData::isPortrait;
constexpr auto selfie = &CPhotoData::isSelfie;
constexpr auto favorite = &CPhotoData::isFavorite;
constexpr char phone[] = "iPhone14,2";

constexpr Still stills[] = {
    {"Panorama", ios7SubTypes, "7.1", "iPhone4,1", "ZKINDSUBTYPE", 1, Kind::Panoramas, panorama},
    {"Panorama", ios8, "8.0", "iPad4,1", "ZKINDSUBTYPE", 1, Kind::Panoramas, panorama},
    {"Panorama", ios18, "18.1", phone, "ZKINDSUBTYPE", 1, Kind::Panoramas, panorama},
    {"Ios6Panorama", ios7SubTypes, "6.1", phone, "ZKINDSUBTYPE", 1, none, panorama},
    {"OldModelPanorama", ios7SubTypes, "7.1", "iPhone3,1", "ZKINDSUBTYPE", 1, none, panorama},
    {"IpodPanorama", ios9, "9.0", "iPod7,1", "ZKINDSUBTYPE", 1, none, panorama},
    {"Subtype2", ios9, "9.0", phone, "ZKINDSUBTYPE", 2, none, panorama},

    {"Live", ios9, "9.0", phone, "ZVIDEOCPDURATIONTIMESCALE", 600, Kind::LivePhotos, live},
    {"Live", ios18, "18.1", phone, "ZVIDEOCPDURATIONTIMESCALE", 600, Kind::LivePhotos, live},

    {"Animated", ios11, "11.0", phone, "ZPLAYBACKSTYLE", 2, Kind::Animated, animated},
    {"Animated", ios18, "18.1", phone, "ZPLAYBACKSTYLE", 2, Kind::Animated, animated},
    {"PlaybackStyle1", ios11, "11.0", phone, "ZPLAYBACKSTYLE", 1, none, animated},
    {"PlaybackStyle3", ios11, "11.0", phone, "ZPLAYBACKSTYLE", 3, none, animated},
    {"Animated", ios11, "10.3", phone, "ZPLAYBACKSTYLE", 2, none, animated},

    {"Portrait", ios11, "11.0", phone, "ZDEPTHSTATES", 2, Kind::Portrait, portrait},
    {"Portrait", ios11, "13.9", phone, "ZDEPTHSTATES", 2, Kind::Portrait, portrait},
    {"DepthStates1", ios11, "13.7", phone, "ZDEPTHSTATES", 1, none, portrait},
    {"Portrait", ios11, "10.3", phone, "ZDEPTHSTATES", 2, none, portrait},
    {"PortraitByType", ios14, "14.0", phone, "ZDEPTHTYPE", 1, Kind::Portrait, portrait},
    {"PortraitByType", ios18, "18.1", phone, "ZDEPTHTYPE", 1, Kind::Portrait, portrait},
    {"DepthType2", ios14, "14.0", phone, "ZDEPTHTYPE", 2, none, portrait},

    {"Selfie", ios9, "9.0", phone, "ZCAMERACAPTUREDEVICE", 1, Kind::Selfies, selfie},
    {"Selfie", ios18, "18.1", phone, "ZCAMERACAPTUREDEVICE", 1, Kind::Selfies, selfie},
    {"BackCamera", ios9, "9.0", phone, "ZCAMERACAPTUREDEVICE", 0, none, selfie},
    {"Camera2", ios9, "9.0", phone, "ZCAMERACAPTUREDEVICE", 2, none, selfie},
    {"Selfie", ios9, "8.9", phone, "ZCAMERACAPTUREDEVICE", 1, none, selfie},

    {"Favorite", ios8, "8.0", phone, "ZFAVORITE", 1, Kind::Favorites, favorite},
    {"Favorite", ios18, "18.1", phone, "ZFAVORITE", 1, Kind::Favorites, favorite},
    {"Favorite2", ios8, "8.0", phone, "ZFAVORITE", 2, none, favorite},
    {"FavoriteMinus1", ios8, "8.0", phone, "ZFAVORITE", -1, none, favorite},
};

} // namespace

class StillOfAKind : public testing::TestWithParam<Still>
{
};

TEST_P(StillOfAKind, IsToldByVersionModelAndColumn)
{
    const Still &still = GetParam();
    LibraryBuilder library(still.schema);
    library.cameraRollAsset("A.JPG").set(still.column, still.value);

    const CameraRollRun run(library, still.iosVersion, still.productType);

    Kinds expected = {Kind::CameraRoll};
    if (still.kind != none)
        expected.insert(still.kind);
    EXPECT_EQ(run.shownIn("A.JPG"), expected);
    EXPECT_EQ(run.photo("A.JPG").*still.flag, still.kind != none);
}

INSTANTIATE_TEST_SUITE_P(Stills, StillOfAKind, testing::ValuesIn(stills), NameOfCase());

TEST(Favorite, IsNotKnownBelowIos8)
{
    LibraryBuilder library(ios7SubTypes);
    library.execute("alter table ZGENERICASSET add column ZFAVORITE integer default 1");
    library.cameraRollAsset("A.JPG");

    const CameraRollRun run(library);

    EXPECT_EQ(run.shownIn("A.JPG"), Kinds{Kind::CameraRoll});
    EXPECT_FALSE(run.photo("A.JPG").isFavorite);
}

TEST(RawPhoto, ThatIsHiddenIsShownAmongTheHiddenAlone)
{
    LibraryBuilder library(ios15);
    library.asset("A.DNG").set("ZPACKEDBADGEATTRIBUTES", 6).set("ZHIDDEN", 1);
    library.asset("B.MOV").set("ZPACKEDBADGEATTRIBUTES", 8).set("ZHIDDEN", 1);

    const CameraRollRun run(library);

    EXPECT_EQ(run.shownIn("A.DNG"), Kinds{Kind::Hidden});
    EXPECT_EQ(run.shownIn("B.MOV"), Kinds{Kind::Hidden});
    EXPECT_TRUE(run.photo(Kind::Hidden, "A.DNG").isRaw);
    EXPECT_TRUE(run.photo(Kind::Hidden, "B.MOV").isProRes);
}

TEST(HiddenAsset, IsHiddenOnModelsWithoutRawToo)
{
    LibraryBuilder library(ios9);
    library.asset("A.JPG").set("ZHIDDEN", 1).set("ZFAVORITE", 1);

    const CameraRollRun run(library, "9.0", "iPod7,1");

    EXPECT_EQ(run.shownIn("A.JPG"), Kinds{Kind::Hidden});
}

TEST(ProResVideo, IsAVideoToo)
{
    LibraryBuilder library(ios15);
    library.asset("A.MOV").video().set("ZPACKEDBADGEATTRIBUTES", 8);
    EXPECT_EQ(CameraRollRun(library).shownIn("A.MOV"),
              (Kinds{Kind::CameraRoll, Kind::ProRes, Kind::Videos}));
}
