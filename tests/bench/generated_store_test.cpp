/// The libraries that the benchmark generates hold what their shapes say.
#include "store_generator.h"
#include "support/catalogue.h"

#include <gtest/gtest.h>

#include <map>

using namespace iosphoto;
using namespace iosphoto::bench;
using namespace iosphoto::test;

namespace {

/// A library of a shape and its catalogue.
struct Generated
{
    explicit Generated(const StoreShape &shape)
        : database(generate(folder, shape)), catalogue(database, "15.7", "iPhone14,2")
    {
    }

    static std::string generate(const TemporaryFolder &folder, const StoreShape &shape)
    {
        const std::filesystem::path file = folder / "Photos.sqlite";
        generateStore(file, shape);
        return file.string();
    }

    std::map<int, std::vector<int>> counts() const
    {
        std::map<int, std::vector<int>> counts;
        for (const CAlbumGroup &album : catalogue.albums)
            counts[album.albumKind].push_back(album.albumCount);
        return counts;
    }

    TemporaryFolder folder;
    std::string database;
    Catalogue catalogue;
};

using Counts = std::map<int, std::vector<int>>;

} // namespace

TEST(GeneratedStore, HasTheSharesOfAPhoneInEveryAlbum)
{
    const Generated made({2000, 2, 1000});
    EXPECT_EQ(made.counts(), (Counts{{AlbumKind::CameraRoll, {1952}},
                                     {AlbumKind::PhotoLibrary, {20}},
                                     {AlbumKind::Videos, {144}},
                                     {AlbumKind::TimeLapse, {12}},
                                     {AlbumKind::SloMo, {12}},
                                     {AlbumKind::Panoramas, {12}},
                                     {AlbumKind::RecentlyDeleted, {16}},
                                     {AlbumKind::Screenshots, {120}},
                                     {AlbumKind::Favorites, {70}},
                                     {AlbumKind::Selfies, {160}},
                                     {AlbumKind::LivePhotos, {570}},
                                     {AlbumKind::Portrait, {100}},
                                     {AlbumKind::Animated, {10}},
                                     {AlbumKind::User, {992, 992}},
                                     {AlbumKind::ScreenRecordings, {8}},
                                     {AlbumKind::Raw, {6}},
                                     {AlbumKind::ProRes, {2}},
                                     {AlbumKind::Hidden, {12}}}));
}

TEST(GeneratedStore, ShowsOneFrameOfEachBurstInTheCameraRoll)
{
    const Generated made({1120, 0, 0, 12, 10});
    EXPECT_EQ(made.catalogue.cameraRoll()->albumCount, 976 + 12);
    const CAlbumGroup *const bursts = made.catalogue.smart(AlbumKind::Bursts);
    ASSERT_NE(bursts, nullptr);
    EXPECT_EQ(bursts->albumCount, 12);
    EXPECT_EQ(bursts->photos.size(), 120U);
    for (const CPhotoData *frame : bursts->photos)
        EXPECT_EQ(frame->burstCount, frame->isBurstPick * 10) << frame->fileName.toStdString();
}

TEST(GeneratedStore, HasTheSameCatalogueWithATenthOfItInTheLog)
{
    const Generated inFile({1000, 2, 1000});
    const Generated inLog({1000, 2, 1000, 0, 0, true});
    EXPECT_FALSE(exists(inFile.folder / "Photos.sqlite-wal"));
    EXPECT_TRUE(exists(inLog.folder / "Photos.sqlite-wal"));
    EXPECT_EQ(inLog.counts(), inFile.counts());

    std::filesystem::remove(inLog.folder / "Photos.sqlite-wal");
    const Catalogue withoutLog(inLog.database, "15.7", "iPhone14,2");
    EXPECT_LE(withoutLog.cameraRoll()->albumCount, 900);
    EXPECT_GE(withoutLog.cameraRoll()->albumCount, 800);
}

TEST(GeneratedStore, IsTheSameEveryTime)
{
    const StoreShape shape = {300, 3, 20, 4, 5};
    const TemporaryFolder first;
    const TemporaryFolder second;
    EXPECT_TRUE(readFile(Generated::generate(first, shape)) ==
                readFile(Generated::generate(second, shape)));
}

TEST(GeneratedStore, HasThePhotosOfSeveralYearsSeveralADayInDirectoriesOfAThousand)
{
    const Generated made({3000, 0, 0});
    const auto &photos = made.catalogue.cameraRoll()->photos;
    EXPECT_EQ(photos.front()->directory, "DCIM/102APPLE");
    EXPECT_EQ(photos.back()->directory, "DCIM/100APPLE");
    EXPECT_EQ(photos.front()->dateText, "2023-03-08");
    EXPECT_EQ(photos.back()->dateText, "2022-06-07");
}
