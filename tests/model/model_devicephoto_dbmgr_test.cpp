#include "support/catalogue.h"

#include <gtest/gtest.h>

using namespace iosphoto;
using namespace iosphoto::test;

namespace {

/// A library with a photo for each album that collects on `schema`, so that none is dropped.
struct CollectedLibrary
{
    explicit CollectedLibrary(const Schema &schema) : library(schema)
    {
        const AlbumRow holiday = library.album("Holiday").set("ZKIND", 1);
        library.asset("SYNC0001.JPG").synced().set("ZKINDSUBTYPE", 1).in(holiday);
        library.asset("SYNC0002.PNG").synced().set("ZKINDSUBTYPE", 10).in(holiday);
    }

    LibraryBuilder library;
};

} // namespace

TEST(CatalogueBuild, AlbumsThatCollectStandBetweenTheSmartOnesAndTheUsers)
{
    CollectedLibrary made(ios15);
    made.library.execute("update ZASSET set ZDEPTHTYPE = 1");
    made.library.execute("update ZADDITIONALASSETATTRIBUTES set ZCAMERACAPTUREDEVICE = 1");
    const Catalogue catalogue(made.library);
    EXPECT_EQ(albumKinds(catalogue.albums),
              (AlbumKinds{AlbumKind::CameraRoll, AlbumKind::PhotoLibrary, AlbumKind::Selfies,
                          AlbumKind::Portrait, AlbumKind::Panoramas, AlbumKind::Screenshots,
                          AlbumKind::User, AlbumKind::RecentlyDeleted}));
    for (std::size_t i = 2; i < 6; ++i)
        EXPECT_FALSE(catalogue.albums[i].isSmartAlbum) << i;
    EXPECT_EQ(catalogue.plain(AlbumKind::Screenshots)->albumName, QString::fromUtf8("屏幕快照"));
}

TEST(CatalogueBuild, Ios8CollectsPanoramasAndScreenshotsUnderTheirOlderName)
{
    const CollectedLibrary made(ios8);
    const Catalogue catalogue(made.library);
    EXPECT_EQ(albumKinds(catalogue.albums),
              (AlbumKinds{AlbumKind::CameraRoll, AlbumKind::PhotoLibrary, AlbumKind::Panoramas,
                          AlbumKind::Screenshots, AlbumKind::User, AlbumKind::RecentlyDeleted}));
    EXPECT_EQ(catalogue.plain(AlbumKind::Screenshots)->albumName, QString::fromUtf8("屏幕截图"));
}

TEST(CatalogueBuild, SecondBuildAppendsASecondSetOfAlbums)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.MOV").video();
    OwningManager manager(library);
    EXPECT_EQ(manager.GetPhotoAlbumDatas(), 0);
    const AlbumKinds once = {AlbumKind::CameraRoll, AlbumKind::PhotoLibrary, AlbumKind::Videos,
                             AlbumKind::RecentlyDeleted};
    EXPECT_EQ(albumKinds(manager.albums), once);

    EXPECT_EQ(manager.GetPhotoAlbumDatas(), 0);

    // The first Recently Deleted moved to the end once more.
    EXPECT_EQ(albumKinds(manager.albums),
              (AlbumKinds{AlbumKind::CameraRoll, AlbumKind::PhotoLibrary, AlbumKind::Videos,
                          AlbumKind::CameraRoll, AlbumKind::PhotoLibrary, AlbumKind::Videos,
                          AlbumKind::RecentlyDeleted, AlbumKind::RecentlyDeleted}));
    // The first albums of the list take the photos again, the second Camera Roll none.
    EXPECT_EQ(files(&manager.albums.front()), (Files{"IMG_0001.MOV", "IMG_0001.MOV"}));
    EXPECT_EQ(files(&manager.albums[2]), (Files{"IMG_0001.MOV", "IMG_0001.MOV"}));
    EXPECT_EQ(files(&manager.albums[3]), Files());
    EXPECT_EQ(files(&manager.albums[5]), (Files{"IMG_0001.MOV"}));
}

TEST(CatalogueBuild, VersionSetBetweenPassesCountsFromTheNextPassOn)
{
    LibraryBuilder library(ios15);
    library.asset("SYNC0001.JPG").synced();
    OwningManager manager(library.path(), "7.1", "iPhone14,2");
    manager.prepare();
    EXPECT_EQ(manager.smart(AlbumKind::Favorites), nullptr);
    EXPECT_EQ(manager.GetPhotosAlbum(), 0);
    EXPECT_FALSE(manager.isSupportLivePhoto());

    manager.SetProductVer("17.4");

    EXPECT_EQ(manager.GetPhotosAlbum(), 1);
    EXPECT_TRUE(manager.isSupportLivePhoto());
    EXPECT_EQ(manager.SetDefaultAlbum(), 0);
    EXPECT_NE(manager.smart(AlbumKind::Favorites), nullptr);
}

TEST(CatalogueBuild, PathSetBetweenPassesCountsFromTheNextPassOn)
{
    LibraryBuilder first(ios15);
    LibraryBuilder second(ios15);
    second.asset("SYNC0001.JPG").synced();
    OwningManager manager(first);
    manager.prepare();
    EXPECT_EQ(manager.GetPhotosAlbum(), 0);
    manager.SetDataPath(QString::fromStdString(second.path()));
    EXPECT_EQ(manager.GetPhotosAlbum(), 1);
}

TEST(CatalogueBuild, FailedOpenLeavesTheBuiltInAlbumsAsTheyWereLaidDown)
{
    const TemporaryFolder folder;
    OwningManager manager(folder.path().string(), "15.0", "iPhone14,2");
    EXPECT_EQ(manager.GetPhotoAlbumDatas(), -14);
    OwningManager expected(folder.path().string(), "15.0", "iPhone14,2");
    expected.SetDefaultAlbum();
    EXPECT_EQ(albumKinds(manager.albums), albumKinds(expected.albums));
    EXPECT_EQ(manager.albums.size(), 19U);
}
