#include "support/damage.h"
#include "support/report.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <type_traits>

using namespace iosphoto;
using namespace iosphoto::test;
using testing::HasSubstr;

namespace {

std::vector<int> passesOf(const CReadReport &report)
{
    std::vector<int> passes;
    for (const CPassReport &pass : report.passes)
        passes.push_back(pass.pass);
    return passes;
}

const std::vector<int> allPasses = {1, 2, 3, 4, 5, 6, 7};

} // namespace

TEST(ReadReport, IsCompleteForEverySoundLibrary)
{
    for (const Schema &schema : allSchemas) {
        LibraryBuilder library(schema);
        library.cameraRollAsset("IMG_0001.JPG").in(library.album("Trip"));
        const ReportedBuild build(library);
        EXPECT_TRUE(build.report.isComplete()) << schema;
        EXPECT_EQ(build.report.firstStopped(), nullptr) << schema;
        EXPECT_EQ(passesOf(build.report), allPasses) << schema;
    }
}

TEST(ReadReport, CountsTheRowsOfEachPass)
{
    LibraryBuilder library(ios15);
    const AlbumRow trip = library.album("Trip");
    library.asset("IMG_0001.JPG").in(trip);
    library.asset("").in(trip); // shown nowhere
    library.asset("SYNC0003.JPG").synced();
    const ReportedBuild build(library);
    EXPECT_EQ(build.of(Pass::AssetEntity).rows, 1);
    EXPECT_EQ(build.of(Pass::CameraRoll).rows, 2);
    EXPECT_EQ(build.of(Pass::PhotoLibrary).rows, 1);
    EXPECT_EQ(build.of(Pass::UserAlbums).rows, 1);
    EXPECT_EQ(build.of(Pass::AlbumContents).rows, 2);
}

TEST(ReadReport, TellsAnEmptyLibraryFromOneOfAnotherSchema)
{
    const LibraryBuilder library(ios15);
    EXPECT_TRUE(ReportedBuild(library).report.isComplete());

    const ReportedBuild build(library.path(), "13.7", "iPhone14,2");
    EXPECT_EQ(build.result, 0);
    ASSERT_NE(build.report.firstStopped(), nullptr);
    EXPECT_EQ(build.report.firstStopped()->pass, Pass::CameraRoll);
    EXPECT_EQ(build.report.firstStopped()->code, 1);
    EXPECT_THAT(build.report.firstStopped()->text, HasSubstr("no such table: ZGENERICASSET"));
}

TEST(ReadReport, TellsOfDamageAndOfTheRowsBeforeIt)
{
    LibraryBuilder library(ios15);
    const AlbumRow trip = library.album("Trip");
    for (int i = 0; i < 3; ++i)
        library.asset("IMG_0001.JPG").in(trip);
    damageTable(library, "Z_27ASSETS");
    const ReportedBuild build(library);
    EXPECT_EQ(build.result, 0);
    EXPECT_FALSE(build.report.isComplete());
    EXPECT_EQ(build.of(Pass::AlbumContents).code, 11);
    EXPECT_EQ(build.of(Pass::AlbumContents).rows, 0);
    EXPECT_EQ(build.of(Pass::AlbumContents).text, "database disk image is malformed");
    EXPECT_EQ(build.of(Pass::UserAlbums).code, 0);
    EXPECT_EQ(build.of(Pass::UserAlbums).rows, 1);
    EXPECT_EQ(build.of(Pass::UserAlbums).text, "");
}

TEST(ReadReport, TellsWhatCannotBeOpenedWhatIsNotThereAndWhatIsNoDatabase)
{
    const TemporaryFolder folder;
    const ReportedBuild closed(folder.path().string(), "15.0", "iPhone14,2");
    EXPECT_EQ(closed.result, -14);
    EXPECT_EQ(passesOf(closed.report), std::vector<int>{Pass::AssetEntity});
    EXPECT_EQ(closed.report.firstStopped()->code, 14);
    EXPECT_EQ(closed.report.firstStopped()->text, "unable to open database file");
    EXPECT_FALSE(closed.report.isComplete());

    const ReportedBuild absent((folder / "Photos.sqlite").string(), "15.0", "iPhone14,2");
    EXPECT_EQ(absent.result, 0);
    EXPECT_EQ(absent.report.firstStopped()->code, 14);
    EXPECT_EQ(absent.report.firstStopped()->text, "there is no such file");

    writeFile(folder / "text", std::string(5000, 'x'));
    const ReportedBuild text((folder / "text").string(), "15.0", "iPhone14,2");
    EXPECT_EQ(text.result, 0);
    EXPECT_EQ(text.report.firstStopped()->code, 26);
}

TEST(ReadReport, TellsWhereReadingWouldChangeAFile)
{
    const TemporaryFolder folder;
    const std::string database = (folder / "Photos.sqlite").string();
    writeFile(database, "");
    writeFile(database + "-wal", "left over");
    const ReportedBuild empty(database, "15.0", "iPhone14,2");
    EXPECT_EQ(empty.report.firstStopped()->code, 8);
    EXPECT_EQ(empty.report.firstStopped()->extendedCode, 264);
    EXPECT_THAT(empty.report.firstStopped()->text, HasSubstr("-wal"));

    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG");
    writeFile(library.path() + "-journal", "a change");
    const ReportedBuild hot(library);
    EXPECT_EQ(hot.report.firstStopped()->code, 8);
    EXPECT_EQ(hot.report.firstStopped()->extendedCode, 776);
    EXPECT_THAT(hot.report.firstStopped()->text, HasSubstr("-journal"));
    EXPECT_EQ(hot.cameraRoll(), Files());
}

TEST(ReadReport, IsReplacedByEachBuildAndKeepsNothingOfTheLast)
{
    CReadReport report;
    report.passes.resize(20);
    EXPECT_EQ(
        ios_photo_get_list_reported("/nowhere/at/all", "15.0", "iPhone14,2", nullptr, &report),
        -14);
    EXPECT_EQ(report.passes.size(), 1U);
    EXPECT_EQ(
        ios_photo_get_list_reported("/nowhere/at/all", "15.0", "iPhone14,2", nullptr, nullptr),
        -14);
}

TEST(ReadReport, OfAManagerHasThePassesThatRanEachOnce)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG");
    OwningManager manager(library);
    EXPECT_FALSE(manager.report.isComplete());
    manager.prepare();
    manager.GetCameraAlbum();
    manager.GetPhotosAlbum();
    manager.GetCameraAlbum();
    EXPECT_EQ(passesOf(manager.report), (std::vector<int>{1, 2, 3, 5, 4}));
    EXPECT_EQ(manager.report.firstStopped(), nullptr);
    EXPECT_FALSE(manager.report.isComplete());
}

TEST(ReadReport, RowLimitEndsAPassAndKeepsTheRowsSoFar)
{
    LibraryBuilder library(ios15);
    for (const char *name : {"IMG_0001.JPG", "IMG_0002.JPG", "IMG_0003.JPG"})
        library.asset(name);
    OwningManager exact(library);
    exact.rowLimit = 3;
    EXPECT_EQ(exact.GetPhotoAlbumDatas(), 0);
    EXPECT_TRUE(exact.report.isComplete());

    OwningManager manager(library);
    manager.rowLimit = 2;
    EXPECT_EQ(manager.GetPhotoAlbumDatas(), 0);
    ASSERT_NE(manager.report.firstStopped(), nullptr);
    EXPECT_EQ(manager.report.firstStopped()->pass, Pass::CameraRoll);
    EXPECT_EQ(manager.report.firstStopped()->code, 4);
    EXPECT_EQ(manager.report.firstStopped()->rows, 2);
    EXPECT_EQ(files(manager.plain(AlbumKind::CameraRoll)), (Files{"IMG_0001.JPG", "IMG_0002.JPG"}));
}

TEST(ReadReport, IsAValue)
{
    static_assert(std::is_nothrow_move_constructible_v<CReadReport>);
    static_assert(std::is_nothrow_move_assignable_v<CReadReport>);
    CReadReport report;
    EXPECT_FALSE(report.isComplete());
    for (const int pass : allPasses)
        report.passes.emplace_back().pass = pass;
    EXPECT_TRUE(report.isComplete());
    CReadReport copy(report);
    copy.passes[3].code = 5;
    EXPECT_FALSE(copy.isComplete());
    EXPECT_EQ(copy.firstStopped(), &copy.passes[3]);
    EXPECT_TRUE(report.isComplete());
    report = std::move(copy);
    EXPECT_FALSE(report.isComplete());
}
