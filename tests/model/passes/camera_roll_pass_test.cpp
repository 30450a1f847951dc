#include "model/clock.h"
#include "model/core_data_time.h"
#include "support/camera_roll_run.h"

#include <gtest/gtest.h>

using namespace iosphoto;
using namespace iosphoto::test;

class CameraRollOfEverySchema : public testing::TestWithParam<Schema>
{
};

TEST_P(CameraRollOfEverySchema, ShowsTheDevicesPhotosNewestFirst)
{
    LibraryBuilder library(GetParam());
    // Below iOS 8 the Camera Roll is what an untitled album holds.
    const AlbumRow roll = library.album(library.schema().hasBlobUuids ? Value() : Value(""));
    library.asset("IMG_0001.JPG").in(roll);
    library.asset("IMG_0002.JPG").in(roll);

    const Catalogue catalogue(library);

    EXPECT_EQ(catalogue.result, 0);
    EXPECT_EQ(files(catalogue.cameraRoll()), (Files{"IMG_0001.JPG", "IMG_0002.JPG"}));
}

INSTANTIATE_TEST_SUITE_P(Schemas, CameraRollOfEverySchema, testing::ValuesIn(allSchemas),
                         SchemaName());

TEST(CameraRollPass, CountsEveryRowWhateverBecomesOfIt)
{
    constexpr std::uint32_t now = 1700000000;
    const StoppedClock clock(now);
    LibraryBuilder library(ios15);
    library.asset("A.JPG");
    library.asset("");
    library.asset("hidden.jpg").set("ZHIDDEN", 1);
    library.asset("frame.jpg").set("ZAVALANCHEPICKTYPE", 2);
    library.asset("trashed.jpg").trashedAt(now - coreDataEpoch);
    library.asset("purged.jpg").trashedAt(0);

    const CameraRollRun run(library);

    EXPECT_EQ(run.rows, 6);
    EXPECT_EQ(files(run.plain(AlbumKind::CameraRoll)), (Files{"A.JPG"}));
}

TEST(CameraRollPass, CountsTheRowsOfAManagerWithoutAlbums)
{
    LibraryBuilder library(ios15);
    library.asset("A.JPG").set("ZFAVORITE", 1);
    library.asset("B.MOV").video();
    OwningManager manager(library);

    EXPECT_EQ(readCameraRoll(manager), 2);
    EXPECT_TRUE(manager.albums.empty());
}

TEST(CameraRollPass, FillsTheFirstAlbumWhateverItsKind)
{
    LibraryBuilder library(ios15);
    library.asset("A.JPG");
    OwningManager manager(library);
    manager.albums.resize(2);
    manager.albums[0].albumKind = AlbumKind::User;
    manager.albums[1].albumKind = AlbumKind::CameraRoll;

    readCameraRoll(manager);

    EXPECT_EQ(files(&manager.albums[0]), (Files{"A.JPG"}));
    EXPECT_EQ(files(&manager.albums[1]), Files{});
}
