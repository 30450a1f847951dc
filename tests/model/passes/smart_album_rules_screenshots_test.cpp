#include "support/camera_roll_run.h"
#include "support/case_name.h"

#include <gtest/gtest.h>

using namespace iosphoto;
using namespace iosphoto::test;

namespace {

using Kind = AlbumKind;

struct Asset
{
    const char *label;
    Value thumbnailHeight;
    int savedAs;
    Value creator;
    Value subtype;
    bool isScreenshot;

    std::string name() const { return label; }
};

std::ostream &operator<<(std::ostream &stream, const Asset &asset)
{
    return stream << asset.label;
}

const Asset assetsOfIos8[] = {
    {"NothingButAPicture", 0, 3, nullptr, nullptr, true},
    {"UnknownThumbnailHeight", nullptr, 3, nullptr, nullptr, true},
    {"EmptyCreator", 0, 3, "", nullptr, true},
    {"Creator", 0, 3, "com.example.camera", nullptr, false},
    {"Thumbnail", 120, 3, nullptr, nullptr, false},
    {"ThumbnailHeightMinusOne", -1, 3, nullptr, nullptr, false},
    {"SavedFromTheCloud", 0, 6, nullptr, nullptr, false},
    {"SavedOtherwise", 0, 1, nullptr, nullptr, false},
    {"SubtypeOfLaterTimes", 120, 3, nullptr, 10, false},
};

const Asset assetsOfIos9[] = {
    {"Subtype", 120, 3, nullptr, 10, true},
    {"SubtypeFromTheCloud", 120, 6, nullptr, 10, true},
    {"SubtypeWithACreator", 120, 3, "com.example.camera", 10, true},
    {"SubtypeWithoutThumbnail", 0, 3, nullptr, 10, true},
    {"SubtypeWithUnknownThumbnailHeight", nullptr, 3, nullptr, 10, true},
    {"ThumbnailHeightMinusOne", -1, 3, nullptr, 10, false},
    {"SubtypeImported", 120, 0, nullptr, 10, false},
    {"SubtypeSavedAs1", 120, 1, nullptr, 10, false},
    {"SubtypeSavedAs5", 120, 5, nullptr, 10, false},
    {"OtherSubtype", 120, 3, nullptr, 2, false},
    {"NoSubtype", 0, 3, nullptr, nullptr, false},
};

void expectScreenshot(const Asset &asset, const Schema &schema, const char *iosVersion)
{
    LibraryBuilder library(schema);
    library.asset("A.PNG")
        .set("ZEMBEDDEDTHUMBNAILHEIGHT", asset.thumbnailHeight)
        .set("ZSAVEDASSETTYPE", asset.savedAs)
        .set("ZCREATORBUNDLEID", asset.creator)
        .set("ZKINDSUBTYPE", asset.subtype);

    const CameraRollRun run(library, iosVersion);

    EXPECT_EQ(run.photo("A.PNG").isScreenshot, asset.isScreenshot);
    EXPECT_EQ(run.shownIn("A.PNG"), asset.isScreenshot
                                        ? (Kinds{Kind::CameraRoll, Kind::Screenshots})
                                        : Kinds{Kind::CameraRoll});
}

} // namespace

class ScreenshotOfIos8 : public testing::TestWithParam<Asset>
{
};

TEST_P(ScreenshotOfIos8, IsToldByWhatACameraWouldHaveLeft)
{
    expectScreenshot(GetParam(), ios8, "8.0");
    expectScreenshot(GetParam(), ios8, "8.9");
}

INSTANTIATE_TEST_SUITE_P(Assets, ScreenshotOfIos8, testing::ValuesIn(assetsOfIos8), NameOfCase());

class ScreenshotFromIos9On : public testing::TestWithParam<Asset>
{
};

TEST_P(ScreenshotFromIos9On, IsToldByItsSubtype)
{
    expectScreenshot(GetParam(), ios9, "9.0");
    expectScreenshot(GetParam(), ios14, "14.8");
}

INSTANTIATE_TEST_SUITE_P(Assets, ScreenshotFromIos9On, testing::ValuesIn(assetsOfIos9),
                         NameOfCase());

TEST(Screenshot, IsNotKnownBelowIos8)
{
    LibraryBuilder library(ios7SubTypes);
    library.cameraRollAsset("A.PNG").set("ZEMBEDDEDTHUMBNAILHEIGHT", 0).set("ZKINDSUBTYPE", 10);

    const CameraRollRun run(library);

    EXPECT_EQ(run.shownIn("A.PNG"), Kinds{Kind::CameraRoll});
    EXPECT_FALSE(run.photo("A.PNG").isScreenshot);
}

namespace {

struct OtherKind
{
    const char *label;
    const char *column;
    Value value;

    std::string name() const { return label; }
};

std::ostream &operator<<(std::ostream &stream, const OtherKind &kind)
{
    return stream << kind.label;
}

const OtherKind otherKinds[] = {
    {"Raw", "ZPACKEDBADGEATTRIBUTES", 6},
    {"ProRes", "ZPACKEDBADGEATTRIBUTES", 8},
    {"Video", "ZUNIFORMTYPEIDENTIFIER", "public.mpeg-4"},
    {"BurstFrame", "ZAVALANCHEPICKTYPE", 8},
    {"LivePhoto", "ZVIDEOCPDURATIONTIMESCALE", 600},
};

} // namespace

class ScreenshotOfAnotherKind : public testing::TestWithParam<OtherKind>
{
};

TEST_P(ScreenshotOfAnotherKind, IsNoScreenshot)
{
    LibraryBuilder library(ios15);
    library.asset("A.DNG").set("ZKINDSUBTYPE", 10).set(GetParam().column, GetParam().value);

    const CameraRollRun run(library);

    EXPECT_FALSE(run.photo("A.DNG").isScreenshot);
    EXPECT_EQ(run.shownIn("A.DNG").count(Kind::Screenshots), 0U);
}

INSTANTIATE_TEST_SUITE_P(Kinds, ScreenshotOfAnotherKind, testing::ValuesIn(otherKinds),
                         NameOfCase());

TEST(Screenshot, MayBeAnimatedPortraitSelfieAndFavorite)
{
    LibraryBuilder library(ios15);
    library.asset("A.PNG")
        .set("ZKINDSUBTYPE", 10)
        .set("ZPLAYBACKSTYLE", 2)
        .set("ZDEPTHTYPE", 1)
        .set("ZCAMERACAPTUREDEVICE", 1)
        .set("ZFAVORITE", 1);
    EXPECT_EQ(CameraRollRun(library).shownIn("A.PNG"),
              (Kinds{Kind::CameraRoll, Kind::Screenshots, Kind::Animated, Kind::Portrait,
                     Kind::Selfies, Kind::Favorites}));
}

TEST(Screenshot, IsNotLookedForInALivePhotoOnADeviceWithoutThem)
{
    LibraryBuilder library(ios9);
    library.asset("A.PNG").set("ZKINDSUBTYPE", 10).set("ZVIDEOCPDURATIONTIMESCALE", 600);

    const CameraRollRun run(library, "9.0", "iPhone7,2");

    EXPECT_EQ(run.shownIn("A.PNG"), Kinds{Kind::CameraRoll});
    EXPECT_TRUE(run.photo("A.PNG").isLivePhoto);
    EXPECT_FALSE(run.photo("A.PNG").isScreenshot);
}

TEST(Screenshot, IsNotLookedForInAPanorama)
{
    LibraryBuilder library(ios8);
    library.asset("A.PNG").set("ZEMBEDDEDTHUMBNAILHEIGHT", 0).set("ZKINDSUBTYPE", 1);

    EXPECT_EQ(CameraRollRun(library, "8.4", "iPhone7,2").shownIn("A.PNG"),
              (Kinds{Kind::CameraRoll, Kind::Panoramas}));
    // Where there are no panoramas it is just a picture.
    EXPECT_EQ(CameraRollRun(library, "8.4", "iPod5,1").shownIn("A.PNG"),
              (Kinds{Kind::CameraRoll, Kind::Screenshots}));
}
