#include "support/hand_made_catalogue.h"

#include <gtest/gtest.h>

using namespace iosphoto;
using namespace iosphoto::test;

TEST(VideosGathering, AppendsTheSpecialKindsInTheOrderOfTheList)
{
    HandMadeCatalogue made;
    made.add(AlbumKind::ScreenRecordings, smart, "Recordings", {"r1.mov", "r2.mov"});
    made.add(AlbumKind::Videos, smart, "Videos", {"v.mov"});
    made.add(AlbumKind::SloMo, plain, "Slo-mo", {"s.mov"});
    made.add(AlbumKind::Panoramas, smart, "Panoramas", {"p.jpg"});
    made.add(AlbumKind::TimeLapse, smart, "Time-lapse", {"t1.mov", "t2.mov"});
    made.add(AlbumKind::User, smart, "User", {"u.mov"});
    made.add(AlbumKind::SloMo, smart, "More slo-mo", {"s2.mov"});
    made.finish();
    EXPECT_EQ(files(&made.albums[1]),
              (Files{"v.mov", "r1.mov", "r2.mov", "s.mov", "t1.mov", "t2.mov", "s2.mov"}));
    EXPECT_EQ(made.albums[1].albumCount, 7);
}

TEST(VideosGathering, FillsEveryVideosAlbumWithCopiesOfItsOwn)
{
    HandMadeCatalogue made;
    made.add(AlbumKind::Videos, smart, "Videos", {"v.mov"});
    made.add(AlbumKind::TimeLapse, smart, "Time-lapse", {"t.mov"});
    made.add(AlbumKind::Videos, plain, "Empty videos");
    made.finish();
    ASSERT_EQ(files(&made.albums.front()), (Files{"v.mov", "t.mov"}));
    ASSERT_EQ(files(&made.albums[2]), (Files{"t.mov"}));
    EXPECT_NE(made.albums[0].photos[1], made.albums[1].photos[0]);
    EXPECT_NE(made.albums[0].photos[1], made.albums[2].photos[0]);
    EXPECT_NE(made.albums[1].photos[0], made.albums[2].photos[0]);
}

TEST(VideosGathering, KeepsAVideosAlbumThatHasNoOtherVideos)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.MOV").video().set("ZKINDSUBTYPE", 102);

    const Catalogue catalogue(library);

    const CAlbumGroup *videos = catalogue.smart(AlbumKind::Videos);
    ASSERT_EQ(files(videos), (Files{"IMG_0001.MOV"}));
    EXPECT_EQ(videos->albumCount, 1);
    EXPECT_FALSE(videos->photos[0]->isVideo);
    EXPECT_TRUE(videos->photos[0]->isTimelapse);
    EXPECT_EQ(videos->photos[0]->albumName, QString::fromUtf8("视频"));
    EXPECT_EQ(files(catalogue.smart(AlbumKind::TimeLapse)), (Files{"IMG_0001.MOV"}));
}

TEST(VideosGathering, ReachesVideosAlbumsThatWereThereBeforeTheBuild)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.MOV").video();
    library.asset("IMG_0002.MOV").video().set("ZKINDSUBTYPE", 101);
    library.asset("IMG_0003.MOV").video().set("ZKINDSUBTYPE", 103);
    OwningManager manager(library);
    CAlbumGroup mine;
    mine.albumName = QStringLiteral("Mine");
    mine.albumKind = AlbumKind::CameraRoll; // the passes fill the first two albums of the list
    manager.albums.push_back(mine);
    manager.albums.push_back(mine);
    mine.albumKind = AlbumKind::Videos;
    manager.albums.push_back(mine);

    EXPECT_EQ(manager.GetPhotoAlbumDatas(), 0);

    EXPECT_EQ(files(&manager.albums[2]), (Files{"IMG_0002.MOV", "IMG_0003.MOV"}));
    EXPECT_EQ(files(manager.smart(AlbumKind::Videos)),
              (Files{"IMG_0001.MOV", "IMG_0002.MOV", "IMG_0003.MOV"}));
}

TEST(CatalogueCounts, AreTheNumbersOfPhotosWhateverTheTableSaid)
{
    HandMadeCatalogue made;
    made.add(AlbumKind::CameraRoll, plain, "Roll").albumCount = 5;
    made.add(AlbumKind::PhotoLibrary, plain, "Library", {"1.jpg"}).albumCount = 5;
    made.add(AlbumKind::User, smart, "User", {"1.jpg", "2.jpg"}).albumCount = 5;
    made.add(AlbumKind::Selfies, smart, "Selfies", {"1.jpg", "2.jpg", "3.jpg"});
    made.finish();
    std::vector<int> counts;
    for (const CAlbumGroup &album : made.albums)
        counts.push_back(album.albumCount);
    EXPECT_EQ(counts, (std::vector<int>{0, 1, 2, 3}));
}

TEST(CatalogueLabels, EveryAlbumButCameraRollAndPhotoLibraryLabelsItsPhotos)
{
    HandMadeCatalogue made;
    for (int kind = AlbumKind::CameraRoll; kind <= AlbumKind::AllDeleted; ++kind) {
        CAlbumGroup &album =
            made.add(static_cast<AlbumKind::Code>(kind), kind % 2 == 0, "Album", {"1.jpg"});
        album.albumUuid = "uuid of the album";
        album.photos[0]->albumName = QStringLiteral("Before");
        album.photos[0]->albumUuid = "uuid before";
    }
    made.finish();
    for (const CAlbumGroup &album : made.albums) {
        SCOPED_TRACE(album.albumKind);
        const bool isKept =
            album.albumKind == AlbumKind::CameraRoll || album.albumKind == AlbumKind::PhotoLibrary;
        for (const CPhotoData *photo : album.photos) {
            EXPECT_EQ(photo->albumName, QLatin1String(isKept ? "Before" : "Album"));
            EXPECT_EQ(photo->albumUuid, isKept ? "uuid before" : "uuid of the album");
        }
    }
}

TEST(CatalogueLabels, PhotosOfALibraryNameTheAlbumThatShowsThem)
{
    LibraryBuilder library(ios15);
    const AlbumRow roll = library.album("").set("ZKEYASSET", 1);
    const AlbumRow holiday = library.album("Holiday");
    library.asset("IMG_0001.JPG").set("ZFAVORITE", 1).in(roll).in(holiday);

    const Catalogue catalogue(library);

    EXPECT_EQ(catalogue.photo("IMG_0001.JPG").albumName, QString::fromUtf8("相机胶卷"));
    const CPhotoData &favorite =
        catalogue.photo(catalogue.smart(AlbumKind::Favorites), "IMG_0001.JPG");
    EXPECT_EQ(favorite.albumName, QString::fromUtf8("个人收藏"));
    EXPECT_EQ(favorite.albumUuid, "");
    const CPhotoData &mine = catalogue.photo(catalogue.named("Holiday"), "IMG_0001.JPG");
    EXPECT_EQ(mine.albumName, QStringLiteral("Holiday"));
    EXPECT_EQ(mine.albumUuid, holiday.uuid());
}
