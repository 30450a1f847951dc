#include "support/camera_roll_run.h"
#include "support/case_name.h"

#include <gtest/gtest.h>

using namespace iosphoto;
using namespace iosphoto::test;

namespace {

struct Badge
{
    const char *label;
    Schema schema;
    const char *productType;
    const char *fileName;
    Value badge;
    bool isRaw;
    bool isProRes;

    std::string name() const { return label; }
};

std::ostream &operator<<(std::ostream &stream, const Badge &badge)
{
    return stream << badge.label;
}

const Badge badges[] = {
    {"RawInCapitals", ios15, "iPhone14,2", "IMG_0001.DNG", 6, true, false},
    {"RawInSmallLetters", ios15, "iPhone14,2", "IMG_0001.dng", 6, true, false},
    {"RawBehindOtherDots", ios15, "iPhone14,2", "IMG.0001.Dng", 6, true, false},
    {"RawOnIos18", ios18, "iPhone15,3", "IMG_0001.DNG", 6, true, false},
    {"RawOfATabletOfTheSameNumbers", ios15, "iPad14,2", "IMG_0001.DNG", 6, true, false},
    {"RawBadgeOnAJpeg", ios15, "iPhone14,2", "IMG_0001.JPG", 6, false, false},
    {"RawBadgeWithoutASuffix", ios15, "iPhone14,2", "DNG", 6, false, false},
    {"RawBadgeOnALongerSuffix", ios15, "iPhone14,2", "IMG_0001.DNGX", 6, false, false},
    {"ProRes", ios15, "iPhone14,2", "IMG_0001.MOV", 8, false, true},
    {"ProResOnIos18", ios18, "iPhone15,2", "IMG_0001.MOV", 8, false, true},
    {"ProResWhateverTheSuffix", ios15, "iPhone14,2", "IMG_0001.DNG", 8, false, true},
    {"OtherBadge", ios15, "iPhone14,2", "IMG_0001.DNG", 7, false, false},
    {"BothBadges", ios15, "iPhone14,2", "IMG_0001.DNG", 14, false, false},
    {"NoBadge", ios15, "iPhone14,2", "IMG_0001.DNG", nullptr, false, false},
    {"RawOnAModelWithout", ios15, "iPhone14,5", "IMG_0001.DNG", 6, false, false},
    {"ProResOnAModelWithout", ios18, "iPhone16,1", "IMG_0001.MOV", 8, false, false},
    {"RawWhereTheStatementLacksTheColumn", ios14, "iPhone14,2", "IMG_0001.DNG", 6, false, false},
};

} // namespace

class BadgeOfAnAsset : public testing::TestWithParam<Badge>
{
};

TEST_P(BadgeOfAnAsset, TellsRawAndProRes)
{
    const Badge &badge = GetParam();
    LibraryBuilder library(badge.schema);
    library.asset(badge.fileName).set("ZPACKEDBADGEATTRIBUTES", badge.badge);

    const Catalogue catalogue(library, badge.schema.iosVersion, badge.productType);

    EXPECT_EQ(catalogue.photo(badge.fileName).isRaw, badge.isRaw);
    EXPECT_EQ(catalogue.photo(badge.fileName).isProRes, badge.isProRes);
}

INSTANTIATE_TEST_SUITE_P(Badges, BadgeOfAnAsset, testing::ValuesIn(badges), NameOfCase());

TEST(LivePhotoFlag, IsSetByAnyTimeScaleButZero)
{
    LibraryBuilder library(ios9);
    library.asset("live.jpg").set("ZVIDEOCPDURATIONTIMESCALE", 600);
    library.asset("negative.jpg").set("ZVIDEOCPDURATIONTIMESCALE", -1);
    library.asset("zero.jpg").set("ZVIDEOCPDURATIONTIMESCALE", 0);
    library.asset("null.jpg").set("ZVIDEOCPDURATIONTIMESCALE", nullptr);

    const Catalogue catalogue(library, "9.0");

    EXPECT_TRUE(catalogue.photo("live.jpg").isLivePhoto);
    EXPECT_TRUE(catalogue.photo("negative.jpg").isLivePhoto);
    EXPECT_FALSE(catalogue.photo("zero.jpg").isLivePhoto);
    EXPECT_FALSE(catalogue.photo("null.jpg").isLivePhoto);
}

TEST(LivePhotoFlag, IsNotSetBelowIos9)
{
    LibraryBuilder library(ios9);
    library.asset("live.jpg").set("ZVIDEOCPDURATIONTIMESCALE", 600);
    EXPECT_FALSE(Catalogue(library, "8.4").photo("live.jpg").isLivePhoto);
}

TEST(HiddenFlag, IsSetByOneAlone)
{
    LibraryBuilder library(ios9);
    library.asset("hidden.jpg").set("ZHIDDEN", 1);
    library.asset("other.jpg").set("ZHIDDEN", 2);

    const CameraRollRun run(library, "9.0");

    EXPECT_TRUE(run.photo(AlbumKind::Hidden, "hidden.jpg").isHidden);
    EXPECT_FALSE(run.photo("other.jpg").isHidden);
}

TEST(HiddenFlag, IsNotSetBelowIos9)
{
    LibraryBuilder library(ios9);
    library.asset("hidden.jpg").set("ZHIDDEN", 1);
    EXPECT_FALSE(Catalogue(library, "8.4").photo("hidden.jpg").isHidden);
}

namespace {

struct Pick
{
    int type;
    bool isBurst;
    int isBurstPick;

    std::string name() const { return std::to_string(type); }
};

std::ostream &operator<<(std::ostream &stream, const Pick &pick)
{
    return stream << pick.type;
}

constexpr Pick picks[] = {
    {0, false, 0}, {1, true, 0},  {2, true, 0},  {4, true, 0},  {8, true, 0},
    {15, true, 0}, {16, true, 1}, {17, true, 0}, {20, true, 1}, {32, true, 0},
    {52, true, 1}, {53, true, 0}, {64, true, 0}, {-1, true, 0}, {-16, true, 0},
};

} // namespace

class BurstPickType : public testing::TestWithParam<Pick>
{
};

TEST_P(BurstPickType, TellsFramesAndPicks)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG")
        .set("ZAVALANCHEPICKTYPE", GetParam().type)
        .set("ZAVALANCHEUUID", "burst");

    const CameraRollRun run(library);
    const auto album = GetParam().isBurst ? AlbumKind::Bursts : AlbumKind::CameraRoll;
    const CPhotoData &photo = run.photo(album, "IMG_0001.JPG");

    EXPECT_EQ(photo.isBurst, GetParam().isBurst);
    EXPECT_EQ(photo.isBurstPick, GetParam().isBurstPick);
    EXPECT_EQ(photo.burstUuid.toStdString(), GetParam().isBurst ? "burst" : "");
}

INSTANTIATE_TEST_SUITE_P(Types, BurstPickType, testing::ValuesIn(picks), NameOfCase());

TEST(BurstPickType, IsKnownFromIos8On)
{
    LibraryBuilder library(ios8);
    library.asset("IMG_0001.JPG").set("ZAVALANCHEPICKTYPE", 16).set("ZAVALANCHEUUID", "burst");

    const CameraRollRun run(library, "8.0");

    EXPECT_TRUE(run.photo("IMG_0001.JPG").isBurst);
    EXPECT_EQ(run.photo("IMG_0001.JPG").burstUuid.toStdString(), "burst");
}
