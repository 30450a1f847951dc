#include "support/hand_made_catalogue.h"

#include <gtest/gtest.h>

using namespace iosphoto;
using namespace iosphoto::test;

namespace {

constexpr const char *importedRoll = "电脑导入相机胶卷";
constexpr const char *importedLibrary = "电脑导入照片图库";

/// Albums that all outlive the end of a build, so that only their order changes.
struct AlbumOrder : testing::Test
{
    void addBuiltIn()
    {
        made.add(AlbumKind::CameraRoll, plain, "Roll");
        made.add(AlbumKind::PhotoLibrary, plain, "Library");
    }
    void addUser(const char *name, bool isSmart = smart)
    {
        made.add(AlbumKind::User, isSmart, name);
    }

    HandMadeCatalogue made;
};

} // namespace

TEST_F(AlbumOrder, ImportedAlbumsComeThirdAndFourth)
{
    addBuiltIn();
    addUser("A");
    addUser(importedLibrary, plain);
    addUser("B");
    addUser(importedRoll);
    addUser("C");
    made.finish();
    EXPECT_EQ(albumNames(made.albums),
              (AlbumNames{"Roll", "Library", importedRoll, importedLibrary, "A", "B", "C"}));
}

TEST_F(AlbumOrder, ImportedPhotoLibraryAloneComesThird)
{
    addBuiltIn();
    addUser("A");
    addUser("B");
    addUser(importedLibrary, plain);
    made.finish();
    EXPECT_EQ(albumNames(made.albums), (AlbumNames{"Roll", "Library", importedLibrary, "A", "B"}));
}

TEST_F(AlbumOrder, ImportedCameraRollAloneComesThird)
{
    addBuiltIn();
    addUser("A");
    addUser(importedRoll);
    made.finish();
    EXPECT_EQ(albumNames(made.albums), (AlbumNames{"Roll", "Library", importedRoll, "A"}));
}

TEST_F(AlbumOrder, ImportedCameraRollThatIsThirdStaysAndThePhotoLibraryComesFourth)
{
    addBuiltIn();
    addUser(importedRoll);
    addUser("A");
    addUser(importedLibrary, plain);
    made.finish();
    EXPECT_EQ(albumNames(made.albums),
              (AlbumNames{"Roll", "Library", importedRoll, importedLibrary, "A"}));
}

TEST_F(AlbumOrder, ImportedAlbumsInPlaceStay)
{
    addBuiltIn();
    addUser(importedRoll);
    addUser(importedLibrary, plain);
    addUser("A");
    made.finish();
    EXPECT_EQ(albumNames(made.albums),
              (AlbumNames{"Roll", "Library", importedRoll, importedLibrary, "A"}));
}

TEST_F(AlbumOrder, AlbumsInFrontOfTheirPlaceMoveBehindTheAlbumBeforeIt)
{
    addUser(importedRoll);
    addBuiltIn();
    addUser("A");
    made.finish();
    EXPECT_EQ(albumNames(made.albums), (AlbumNames{"Roll", importedRoll, "Library", "A"}));
}

TEST_F(AlbumOrder, ImportedCameraRollHasToBeSmart)
{
    addBuiltIn();
    addUser("A");
    addUser(importedRoll, plain);
    made.finish();
    EXPECT_EQ(albumNames(made.albums), (AlbumNames{"Roll", "Library", "A", importedRoll}));
}

TEST_F(AlbumOrder, ImportedPhotoLibraryHasNotToBeSmart)
{
    addBuiltIn();
    addUser("A");
    addUser(importedLibrary, smart);
    made.finish();
    EXPECT_EQ(albumNames(made.albums), (AlbumNames{"Roll", "Library", "A", importedLibrary}));
}

TEST_F(AlbumOrder, ImportedAlbumsHaveToBeUserAlbums)
{
    addBuiltIn();
    addUser("A");
    made.add(AlbumKind::PhotoLibrary, smart, importedRoll);
    made.add(AlbumKind::PhotoLibrary, plain, importedLibrary);
    made.finish();
    EXPECT_EQ(albumNames(made.albums),
              (AlbumNames{"Roll", "Library", "A", importedRoll, importedLibrary}));
}

TEST_F(AlbumOrder, OfSeveralImportedAlbumsTheFirstThatMatchesMoves)
{
    addBuiltIn();
    addUser(importedRoll, plain);
    addUser("A");
    addUser(importedRoll);
    made.albums.back().albumUuid = "first";
    addUser(importedRoll);
    made.finish();
    EXPECT_EQ(albumNames(made.albums),
              (AlbumNames{"Roll", "Library", importedRoll, importedRoll, "A", importedRoll}));
    EXPECT_EQ(made.albums[2].albumUuid, "first");
}

TEST_F(AlbumOrder, MovedAlbumsKeepTheirRecords)
{
    addBuiltIn();
    made.add(AlbumKind::User, smart, "A", {"a.jpg"});
    made.add(AlbumKind::User, smart, importedRoll, {"1.jpg", "2.jpg"});
    made.add(AlbumKind::User, plain, importedLibrary, {"3.jpg"});
    made.finish();
    EXPECT_EQ(files(&made.albums[2]), (Files{"1.jpg", "2.jpg"}));
    EXPECT_EQ(files(&made.albums[3]), (Files{"3.jpg"}));
    EXPECT_EQ(files(&made.albums[4]), (Files{"a.jpg"}));
}

TEST_F(AlbumOrder, RecentlyDeletedComesLast)
{
    addBuiltIn();
    made.add(AlbumKind::RecentlyDeleted, smart, "Deleted", {"1.jpg"});
    addUser("A");
    made.add(AlbumKind::RecentlyDeleted, smart, "Second deleted");
    addUser("B");
    made.finish();
    EXPECT_EQ(albumNames(made.albums),
              (AlbumNames{"Roll", "Library", "A", "Second deleted", "B", "Deleted"}));
    EXPECT_EQ(files(&made.albums.back()), (Files{"1.jpg"}));
}

TEST_F(AlbumOrder, RecentlyDeletedHasToBeSmart)
{
    addBuiltIn();
    made.add(AlbumKind::RecentlyDeleted, plain, "Deleted");
    addUser("A");
    made.finish();
    EXPECT_EQ(albumNames(made.albums), (AlbumNames{"Roll", "Library", "Deleted", "A"}));
}

TEST_F(AlbumOrder, EmptyAlbumsOfAllKindsButFourAreDropped)
{
    for (int kind = AlbumKind::CameraRoll; kind <= AlbumKind::AllDeleted; ++kind)
        made.add(static_cast<AlbumKind::Code>(kind), plain, std::to_string(kind).c_str());
    made.finish();
    EXPECT_EQ(albumNames(made.albums), (AlbumNames{"1", "3", "9", "16"}));
}

TEST_F(AlbumOrder, AlbumsThatShowSomethingAreKept)
{
    AlbumNames all;
    for (int kind = AlbumKind::CameraRoll; kind <= AlbumKind::AllDeleted; ++kind) {
        all.push_back(std::to_string(kind));
        made.add(static_cast<AlbumKind::Code>(kind), plain, all.back().c_str(), {"1.jpg"});
    }
    made.finish();
    EXPECT_EQ(albumNames(made.albums), all);
}

TEST_F(AlbumOrder, AlbumsAreNumberedAnewWhereOneWasDropped)
{
    addBuiltIn();
    made.add(AlbumKind::Selfies, smart, "Selfies");
    made.add(AlbumKind::RecentlyDeleted, smart, "Deleted");
    addUser("A");
    made.add(AlbumKind::Favorites, smart, "Favorites");
    addUser(importedRoll);
    made.finish();
    ASSERT_EQ(albumNames(made.albums),
              (AlbumNames{"Roll", "Library", importedRoll, "A", "Deleted"}));
    for (std::size_t i = 0; i < made.albums.size(); ++i)
        EXPECT_EQ(made.albums[i].albumIndex, static_cast<int>(i));
}

TEST_F(AlbumOrder, AlbumsKeepTheirNumbersWhereNoneWasDropped)
{
    addBuiltIn();
    made.add(AlbumKind::RecentlyDeleted, smart, "Deleted");
    addUser(importedLibrary, plain);
    addUser(importedRoll);
    made.finish();
    ASSERT_EQ(albumNames(made.albums),
              (AlbumNames{"Roll", "Library", importedRoll, importedLibrary, "Deleted"}));
    std::vector<int> numbers;
    for (const CAlbumGroup &album : made.albums)
        numbers.push_back(album.albumIndex);
    EXPECT_EQ(numbers, (std::vector<int>{0, 1, 4, 3, 2}));
}

TEST(AlbumOrderOfALibrary, ImportedAlbumsFollowThePhotoLibraryAndRecentlyDeletedIsLast)
{
    LibraryBuilder library(ios15);
    library.album("Holiday");
    library.album(importedLibrary).set("ZKIND", 1);
    library.album(importedRoll);
    library.asset("IMG_0001.MOV").video();

    const Catalogue catalogue(library);

    EXPECT_EQ(albumNames(catalogue.albums),
              (AlbumNames{"相机胶卷", "照片图库", importedRoll, importedLibrary, "视频", "Holiday",
                          "最近删除"}));
    for (std::size_t i = 0; i < catalogue.albums.size(); ++i)
        EXPECT_EQ(catalogue.albums[i].albumIndex, static_cast<int>(i));
}
