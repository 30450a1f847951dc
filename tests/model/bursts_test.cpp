#include "support/camera_roll_run.h"
#include "support/case_name.h"

#include <gtest/gtest.h>

#include <climits>

using namespace iosphoto;
using namespace iosphoto::test;

namespace {

using Kind = AlbumKind;

struct Frame
{
    int pickType;
    bool isInCameraRoll;

    std::string name() const { return std::to_string(pickType); }
};

std::ostream &operator<<(std::ostream &stream, const Frame &frame)
{
    return stream << frame.pickType;
}

constexpr Frame frames[] = {{1, true},  {2, false}, {3, true},  {4, false},
                            {8, true},  {16, true}, {20, true}, {52, true},
                            {53, true}, {-2, true}, {-4, true}, {INT_MAX, true}};

} // namespace

class BurstFrame : public testing::TestWithParam<Frame>
{
};

TEST_P(BurstFrame, IsAmongTheBurstsAndPerhapsInTheCameraRoll)
{
    LibraryBuilder library(ios8);
    library.asset("A.JPG").set("ZAVALANCHEPICKTYPE", GetParam().pickType);
    Kinds expected = {Kind::Bursts};
    if (GetParam().isInCameraRoll)
        expected.insert(Kind::CameraRoll);
    EXPECT_EQ(CameraRollRun(library, "8.0").shownIn("A.JPG"), expected);
}

INSTANTIATE_TEST_SUITE_P(PickTypes, BurstFrame, testing::ValuesIn(frames), NameOfCase());

TEST(Bursts, AreNotKnownBelowIos8)
{
    LibraryBuilder library(ios7SubTypes);
    library.execute("alter table ZGENERICASSET add column ZAVALANCHEPICKTYPE integer default 2");
    library.cameraRollAsset("A.JPG");

    const CameraRollRun run(library);

    EXPECT_EQ(run.shownIn("A.JPG"), Kinds{Kind::CameraRoll});
    EXPECT_FALSE(run.photo("A.JPG").isBurst);
}

TEST(Bursts, KeepTheirFramesApartByUuid)
{
    LibraryBuilder library(ios15);
    for (const char *burst : {"X", "Y", "X", "x", "X"})
        library.asset("A.JPG").set("ZAVALANCHEPICKTYPE", 2).set("ZAVALANCHEUUID", burst);

    CameraRollRun run(library);

    EXPECT_EQ(run.getBurstsCount("X"), 3);
    EXPECT_EQ(run.getBurstsCount("Y"), 1);
    EXPECT_EQ(run.getBurstsCount("x"), 1);
    EXPECT_EQ(run.getBurstsCount("Z"), 0);
    EXPECT_EQ(run.getBurstsCount(""), 0);
}

TEST(Bursts, WithoutAUuidCountAsOneBurst)
{
    LibraryBuilder library(ios15);
    library.asset("A.JPG").set("ZAVALANCHEPICKTYPE", 16);
    library.asset("B.JPG").set("ZAVALANCHEPICKTYPE", 16).set("ZAVALANCHEUUID", "");
    EXPECT_EQ(CameraRollRun(library).getBurstsCount(""), 2);
}

TEST(BurstCount, IsZeroWithoutABurstsAlbum)
{
    const QDevPhotoDbMgr empty("15.0", "iPhone14,2");
    EXPECT_EQ(empty.getBurstsCount("X"), 0);

    QDevPhotoDbMgr before("7.1", "iPhone4,1");
    before.SetDefaultAlbum();
    EXPECT_EQ(before.getBurstsCount("X"), 0);
}

TEST(BurstCount, LooksIntoTheFirstBurstsAlbumAlone)
{
    LibraryBuilder library(ios15);
    library.asset("A.JPG").set("ZAVALANCHEPICKTYPE", 16).set("ZAVALANCHEUUID", "X");
    OwningManager manager(library);
    manager.SetDefaultAlbum();
    CAlbumGroup notSmart;
    notSmart.albumKind = Kind::Bursts;
    manager.albums.insert(manager.albums.begin() + 2, notSmart);

    readCameraRoll(manager);

    ASSERT_EQ(files(manager.smart(Kind::Bursts)), (Files{"A.JPG"}));
    EXPECT_EQ(manager.getBurstsCount("X"), 0);

    std::swap(manager.albums[2].photos, manager.albums[10].photos);
    EXPECT_EQ(manager.getBurstsCount("X"), 1);
}

TEST(BurstPickTypes, ThatStandForTheirBurst)
{
    const QDevPhotoDbMgr manager("15.0", "iPhone14,2");
    for (const int pickType : {16, 20, 52})
        EXPECT_TRUE(manager.isBurstsMain(pickType)) << pickType;
    for (const int pickType : {INT_MIN, -16, 0, 1, 2, 4, 15, 17, 36, 48, 51, 53, 64, INT_MAX})
        EXPECT_FALSE(manager.isBurstsMain(pickType)) << pickType;
}

TEST(BurstPickTypes, ThatTheCameraRollShows)
{
    const QDevPhotoDbMgr manager("15.0", "iPhone14,2");
    for (const int pickType : {INT_MIN, -2, -4, 0, 1, 3, 5, 6, 8, 16, 20, 52, INT_MAX})
        EXPECT_TRUE(manager.isBurstsInCamera(pickType)) << pickType;
    for (const int pickType : {2, 4})
        EXPECT_FALSE(manager.isBurstsInCamera(pickType)) << pickType;
}
