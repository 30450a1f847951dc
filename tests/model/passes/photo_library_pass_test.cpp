#include "support/catalogue.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace iosphoto;
using namespace iosphoto::test;

namespace {

/// A manager that has read the Photo Library, and nothing else.
class PhotoLibraryRead : public OwningManager
{
public:
    explicit PhotoLibraryRead(const LibraryBuilder &library) : OwningManager(library)
    {
        prepare();
        result = GetPhotosAlbum();
    }

    const CAlbumGroup *album() const { return plain(AlbumKind::PhotoLibrary); }
    const std::vector<CPhotoData *> &photos() const { return album()->photos; }

    int result = 0;
};

std::vector<std::string> albumUuids(const std::vector<CPhotoData *> &photos)
{
    std::vector<std::string> uuids;
    uuids.reserve(photos.size());
    for (const CPhotoData *photo : photos)
        uuids.push_back(photo->albumUuid);
    std::sort(uuids.begin(), uuids.end());
    return uuids;
}

} // namespace

class PhotoLibraryOfEverySchema : public testing::TestWithParam<Schema>
{
};

TEST_P(PhotoLibraryOfEverySchema, ShowsWhatAComputerSyncedNewestFirst)
{
    LibraryBuilder library(GetParam());
    library.asset("SYNC0001.JPG").synced();
    library.asset("IMG_0002.JPG");
    library.asset("SYNC0003.JPG").synced();
    library.asset("SYNC0004.JPG").synced().set("ZSAVEDASSETTYPE", 3);

    const PhotoLibraryRead read(library);

    EXPECT_EQ(read.result, 2);
    EXPECT_EQ(files(read.album()), (Files{"SYNC0001.JPG", "SYNC0003.JPG"}));
}

TEST_P(PhotoLibraryOfEverySchema, FillsNoOtherAlbum)
{
    LibraryBuilder library(GetParam());
    library.asset("SYNC0001.MOV").synced().video();

    const PhotoLibraryRead read(library);

    for (const CAlbumGroup &album : read.albums)
        EXPECT_EQ(album.photos.size(), album.albumKind == AlbumKind::PhotoLibrary ? 1U : 0U)
            << album.albumKind;
}

TEST_P(PhotoLibraryOfEverySchema, CountsRowsWithoutAFileNameButDoesNotPlaceThem)
{
    LibraryBuilder library(GetParam());
    library.asset("SYNC0001.JPG").synced();
    library.asset("").synced();
    library.asset("SYNC0003.JPG").synced();

    const PhotoLibraryRead read(library);

    EXPECT_EQ(read.result, 3);
    EXPECT_EQ(files(read.album()), (Files{"SYNC0001.JPG", "SYNC0003.JPG"}));
}

TEST_P(PhotoLibraryOfEverySchema, TakesTheAlbumUuidFromUntitledAlbums)
{
    LibraryBuilder library(GetParam());
    const AlbumRow untitled = library.album(nullptr);
    const AlbumRow another = library.album(nullptr);
    const AlbumRow system = library.album(nullptr).set("ZKIND", 3500);
    const AlbumRow empty = library.album("");
    const AlbumRow titled = library.album("Holiday");
    AssetRow none = library.asset("SYNC0001.JPG").synced();
    none.in(system).in(empty).in(titled);
    AssetRow both = library.asset("SYNC0002.JPG").synced();
    both.in(untitled).in(another).in(titled);

    const PhotoLibraryRead read(library);

    EXPECT_EQ(read.result, 3);
    EXPECT_EQ(files(read.album()), (Files{"SYNC0001.JPG", "SYNC0002.JPG", "SYNC0002.JPG"}));
    EXPECT_EQ(albumUuids(read.photos()),
              (std::vector<std::string>{"", untitled.uuid(), another.uuid()}));
}

INSTANTIATE_TEST_SUITE_P(Schemas, PhotoLibraryOfEverySchema, testing::ValuesIn(allSchemas),
                         SchemaName());

class PhotoLibraryBeforeIos14 : public testing::TestWithParam<Schema>
{
};

TEST_P(PhotoLibraryBeforeIos14, TellsSyncedAssetsByTheirTypeWhateverTheirUuid)
{
    LibraryBuilder library(GetParam());
    library.asset("SYNC0001.JPG").set("ZSAVEDASSETTYPE", 256);
    EXPECT_EQ(files(PhotoLibraryRead(library).album()), (Files{"SYNC0001.JPG"}));
}

TEST_P(PhotoLibraryBeforeIos14, LeavesOutRowsOfOtherEntities)
{
    LibraryBuilder library(GetParam());
    const std::string entity = "Z" + std::to_string(GetParam().assetNumber()) + "_ASSET";
    library.asset("SYNC0001.JPG").synced().set(entity, GetParam().asset + 1);
    library.asset("SYNC0002.JPG").synced().set(entity, nullptr);
    EXPECT_EQ(PhotoLibraryRead(library).result, 0);
}

TEST_P(PhotoLibraryBeforeIos14, TakesNoUuidFromAlbumsOfOtherEntities)
{
    LibraryBuilder library(GetParam());
    const AlbumRow stream = library.photoStream().set("ZTITLE", nullptr);
    library.asset("SYNC0001.JPG").synced().in(stream);
    const PhotoLibraryRead read(library);
    EXPECT_EQ(albumUuids(read.photos()), (std::vector<std::string>{""}));
}

INSTANTIATE_TEST_SUITE_P(Schemas, PhotoLibraryBeforeIos14,
                         testing::Values(ios6, ios7, ios7SubTypes, ios8, ios9, ios11),
                         SchemaName());

class PhotoLibraryFromIos14 : public testing::TestWithParam<Schema>
{
};

TEST_P(PhotoLibraryFromIos14, TellsSyncedAssetsByTheZerosOfTheirUuidAndTheirType)
{
    LibraryBuilder library(GetParam());
    library.asset("SYNC0001.JPG").set("ZSAVEDASSETTYPE", 256);
    library.asset("SYNC0002.JPG").synced().set("ZUUID", "00000000-0000-0001-0000-000000000002");
    library.asset("SYNC0003.JPG").synced().set("ZUUID", "00000000-0000-0000-FFFF-0123456789AB");
    library.asset("SYNC0004.JPG").synced().set("ZUUID", nullptr);
    EXPECT_EQ(files(PhotoLibraryRead(library).album()), (Files{"SYNC0003.JPG"}));
}

TEST_P(PhotoLibraryFromIos14, AsksForNoEntity)
{
    LibraryBuilder library(GetParam());
    const AlbumRow stream = library.photoStream().set("ZTITLE", nullptr);
    library.asset("SYNC0001.JPG").synced().set("Z_ENT", GetParam().asset + 1).in(stream);
    const PhotoLibraryRead read(library);
    EXPECT_EQ(albumUuids(read.photos()), (std::vector<std::string>{stream.uuid()}));
}

INSTANTIATE_TEST_SUITE_P(Schemas, PhotoLibraryFromIos14, testing::ValuesIn(schemasFrom(ios14)),
                         SchemaName());

TEST(PhotoLibraryPass, WithFewerThanTwoAlbumsCountsRowsAndPlacesNone)
{
    LibraryBuilder library(ios15);
    library.asset("SYNC0001.JPG").synced();
    for (const std::size_t albums : {0U, 1U}) {
        OwningManager manager(library);
        manager.prepare();
        manager.albums = std::vector<CAlbumGroup>(albums); // with no room for a second one
        EXPECT_EQ(manager.GetPhotosAlbum(), 1);
        ASSERT_EQ(manager.albums.size(), albums);
        for (const CAlbumGroup &album : manager.albums)
            EXPECT_EQ(files(&album), Files());
    }
}

TEST(PhotoLibraryPass, FillsTheSecondAlbumWhateverItsKind)
{
    LibraryBuilder library(ios15);
    library.asset("SYNC0001.JPG").synced();
    OwningManager manager(library);
    manager.prepare();
    CAlbumGroup user;
    user.albumKind = AlbumKind::User;
    manager.albums.insert(manager.albums.begin() + 1, user);

    manager.GetPhotosAlbum();

    EXPECT_EQ(files(&manager.albums[1]), (Files{"SYNC0001.JPG"}));
    EXPECT_EQ(files(manager.plain(AlbumKind::PhotoLibrary)), Files());
}

TEST(PhotoLibraryPass, StatementThatDoesNotMatchTheSchemaGivesNoRows)
{
    LibraryBuilder library(ios14);
    library.asset("SYNC0001.JPG").synced();
    OwningManager manager(library);
    manager.prepare();
    manager.SetProductVer("13.7");
    EXPECT_EQ(manager.GetPhotosAlbum(), 0);
    EXPECT_EQ(files(manager.plain(AlbumKind::PhotoLibrary)), Files());
}

TEST(PhotoLibraryPass, PathThatCannotBeOpenedGivesTheNegatedCode)
{
    const TemporaryFolder folder;
    OwningManager manager(folder.path().string(), "15.0", "iPhone14,2");
    EXPECT_EQ(manager.GetPhotosAlbum(), -14);
}
