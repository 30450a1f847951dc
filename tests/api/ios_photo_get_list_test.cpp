#include "model/store/database_visit.h"
#include "records/record_ownership.h"
#include "support/catalogue.h"

#include <gtest/gtest.h>

#include <type_traits>

using namespace iosphoto;
using namespace iosphoto::test;

namespace {

/// What is left of a catalogue in which nothing was found.
const AlbumKinds nothingFound = {AlbumKind::CameraRoll, AlbumKind::PhotoLibrary,
                                 AlbumKind::RecentlyDeleted};

void expectNothingFound(const Catalogue &catalogue)
{
    EXPECT_EQ(catalogue.result, 0);
    EXPECT_EQ(albumKinds(catalogue.albums), nothingFound);
    for (const CAlbumGroup &album : catalogue.albums)
        EXPECT_EQ(files(&album), Files()) << album.albumKind;
}

/// A list of the host's, as it was before a call.
struct HostsList
{
    HostsList()
    {
        CAlbumGroup album;
        album.albumIndex = 7;
        album.albumName = QStringLiteral("Mine");
        album.albumUuid = "uuid of mine";
        album.photos = {&photo};
        albums = {album, CAlbumGroup()};
        storage = albums.data();
    }

    void expectUntouched() const
    {
        ASSERT_EQ(albums.size(), 2U);
        EXPECT_EQ(albums.data(), storage);
        EXPECT_EQ(albums[0].albumIndex, 7);
        EXPECT_EQ(albums[0].albumName, QStringLiteral("Mine"));
        EXPECT_EQ(albums[0].albumUuid, "uuid of mine");
        EXPECT_EQ(albums[0].photos, std::vector<CPhotoData *>{&photo});
        EXPECT_EQ(albums[1].albumIndex, -1);
    }

    mutable CPhotoData photo;
    std::vector<CAlbumGroup> albums;
    const CAlbumGroup *storage = nullptr;
};

bool isLockFree()
{
    const bool isFree = g_Lock.tryLock();
    if (isFree)
        g_Lock.unlock();
    return isFree;
}

} // namespace

TEST(GetList, ReplacesTheListOnSuccess)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG");
    CPhotoData mine;
    std::vector<CAlbumGroup> albums(50);
    albums[0].photos = {&mine};

    EXPECT_EQ(ios_photo_get_list(library.path(), "15.0", "iPhone14,2", &albums), 0);

    EXPECT_EQ(albumKinds(albums), nothingFound);
    EXPECT_EQ(files(&albums.front()), (Files{"IMG_0001.JPG"}));
    destroyRecords(albums);
}

TEST(GetList, PathThatCannotBeOpenedGivesTheNegatedCodeAndLeavesTheListAlone)
{
    const TemporaryFolder folder;
    const std::string paths[] = {folder.path().string(),
                                 (folder / "none" / "Photos.sqlite").string()};
    for (const std::string &path : paths) {
        HostsList list;
        EXPECT_EQ(ios_photo_get_list(path, "15.0", "iPhone14,2", &list.albums), -14) << path;
        list.expectUntouched();
    }
}

TEST(GetList, WithoutAListReturnsTheSameResults)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG");
    EXPECT_EQ(ios_photo_get_list(library.path(), "15.0", "iPhone14,2", nullptr), 0);
    EXPECT_EQ(ios_photo_get_list(library.folder().string(), "15.0", "iPhone14,2", nullptr), -14);
}

TEST(GetList, PathWithoutAFileGivesTheBuiltInAlbumsThatAreNeverDropped)
{
    const TemporaryFolder folder;
    expectNothingFound(Catalogue((folder / "Photos.sqlite").string(), "15.0", "iPhone14,2"));
}

TEST(GetList, NamesThatMeanADatabaseInMemoryGiveTheBuiltInAlbumsThatAreNeverDropped)
{
    for (const char *name : {"", ":memory:"})
        expectNothingFound(Catalogue(name, "15.0", "iPhone14,2"));
}

TEST(GetList, FileThatIsNoDatabaseGivesTheBuiltInAlbumsThatAreNeverDropped)
{
    const TemporaryFolder folder;
    const auto file = folder / "Photos.sqlite";
    const std::string content(5000, 'x');
    writeFile(file, content);
    expectNothingFound(Catalogue(file.string(), "15.0", "iPhone14,2"));
    EXPECT_EQ(readFile(file), content);
}

TEST(GetList, DatabaseOfAnotherKindGivesTheBuiltInAlbumsThatAreNeverDropped)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG");
    library.execute("drop table ZADDITIONALASSETATTRIBUTES");
    expectNothingFound(Catalogue(library));
}

TEST(GetList, PathIsUtf8)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG");
    library.close();
    const auto path = library.folder() / "照片 Fotos é.sqlite";
    std::filesystem::rename(library.path(), path);
    const Catalogue catalogue(path.string(), "15.0", "iPhone14,2");
    EXPECT_EQ(files(catalogue.cameraRoll()), (Files{"IMG_0001.JPG"}));
}

TEST(GetList, TakesPathThenVersionThenModel)
{
    static_assert(
        std::is_same_v<decltype(&ios_photo_get_list),
                       int (*)(std::string, std::string, std::string, std::vector<CAlbumGroup> *)>);
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG").set("ZKINDSUBTYPE", 1);
    const Catalogue phone(library.path(), "15.0", "iPhone14,2");
    EXPECT_EQ(files(phone.smart(AlbumKind::Panoramas)), (Files{"IMG_0001.JPG"}));
    // Neither a model that is no phone's nor a version that is the oldest takes panoramas.
    const Catalogue swapped(library.path(), "iPhone14,2", "15.0");
    EXPECT_EQ(swapped.smart(AlbumKind::Panoramas), nullptr);
    EXPECT_EQ(files(swapped.cameraRoll()), Files());
}

TEST(GetList, KeepsNothingFromOneCallToTheNext)
{
    LibraryBuilder older(ios7);
    older.album("Holiday");
    LibraryBuilder newer(ios18);
    newer.album("Friends");
    const Catalogue first(older);
    const Catalogue second(newer);
    const Catalogue third(older);
    EXPECT_NE(second.named(QStringLiteral("Friends")), nullptr);
    EXPECT_EQ(second.named(QStringLiteral("Holiday")), nullptr);
    EXPECT_EQ(albumKinds(third.albums), albumKinds(first.albums));
}

TEST(GetList, GivesTheLockBackAfterSuccessAndFailure)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG");
    ASSERT_TRUE(isLockFree());
    EXPECT_EQ(Catalogue(library).result, 0);
    EXPECT_TRUE(isLockFree());
    EXPECT_EQ(Catalogue(library.folder().string(), "15.0", "iPhone14,2").result, -14);
    EXPECT_TRUE(isLockFree());
    library.execute("drop table ZASSET"); // statements that do not prepare
    EXPECT_EQ(Catalogue(library).result, 0);
    EXPECT_TRUE(isLockFree());
}
