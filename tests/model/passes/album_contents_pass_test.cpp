#include "support/album_contents.h"

#include <gtest/gtest.h>

using namespace iosphoto;
using namespace iosphoto::test;

class AlbumContentsOfEverySchema : public testing::TestWithParam<Schema>
{
};

TEST_P(AlbumContentsOfEverySchema, EachAlbumShowsItsAssetsNewestFirst)
{
    LibraryBuilder library(GetParam());
    const AlbumRow holiday = library.album("Holiday");
    const AlbumRow empty = library.album("Empty");
    const AlbumRow friends = library.album("Friends").set("ZKIND", 1);
    AssetRow newest = library.asset("IMG_0001.JPG");
    AssetRow older = library.asset("IMG_0002.JPG");
    library.asset("IMG_0003.JPG").in(holiday);
    older.in(friends);
    newest.in(holiday);

    const AlbumContents contents(library);

    EXPECT_EQ(contents.result, 3);
    EXPECT_EQ(files(&contents[holiday]), (Files{"IMG_0001.JPG", "IMG_0003.JPG"}));
    EXPECT_EQ(files(&contents[empty]), Files());
    EXPECT_EQ(files(&contents[friends]), (Files{"IMG_0002.JPG"}));
}

TEST_P(AlbumContentsOfEverySchema, AssetInTwoAlbumsHasARecordOfItsOwnInEach)
{
    LibraryBuilder library(GetParam());
    const AlbumRow holiday = library.album("Holiday");
    const AlbumRow friends = library.album("Friends");
    AssetRow asset = library.asset("IMG_0001.JPG").in(holiday).in(friends);

    const AlbumContents contents(library);

    EXPECT_EQ(contents.result, 2);
    const CPhotoData &one = contents.photo(holiday);
    const CPhotoData &other = contents.photo(friends);
    EXPECT_NE(&one, &other);
    EXPECT_EQ(one.uuid, asset.uuid());
    EXPECT_EQ(one.albumUuid, holiday.uuid());
    EXPECT_EQ(one.albumName, QStringLiteral("Holiday"));
    EXPECT_EQ(other.uuid, asset.uuid());
    EXPECT_EQ(other.albumUuid, friends.uuid());
    EXPECT_EQ(other.albumName, QStringLiteral("Friends"));
}

TEST_P(AlbumContentsOfEverySchema, RowsWithoutAFileNameAreCountedButNotShown)
{
    LibraryBuilder library(GetParam());
    const AlbumRow holiday = library.album("Holiday");
    library.asset("").in(holiday);
    library.asset(nullptr).in(holiday);
    const AlbumContents contents(library);
    EXPECT_EQ(contents.result, 2);
    EXPECT_EQ(files(&contents[holiday]), Files());
}

TEST_P(AlbumContentsOfEverySchema, RowsWithoutAnAssetUuidAreSkippedUncounted)
{
    LibraryBuilder library(GetParam());
    const AlbumRow holiday = library.album("Holiday");
    library.asset("IMG_0001.JPG").set("ZUUID", nullptr).in(holiday);
    library.asset("IMG_0002.JPG")
        .set("ZUUID", GetParam().hasBlobUuids ? Value(Blob{}) : Value(""))
        .in(holiday);
    const AlbumContents contents(library);
    EXPECT_EQ(contents.result, 0);
    EXPECT_EQ(files(&contents[holiday]), Files());
}

TEST_P(AlbumContentsOfEverySchema, RowsOfAlbumsThatAreNotListedAreCounted)
{
    LibraryBuilder library(GetParam());
    library.asset("IMG_0001.JPG").in(library.album("Holiday"));
    OwningManager manager(library);
    manager.prepare();
    EXPECT_EQ(manager.GetPhotoDatas(), 1);
    for (const CAlbumGroup &album : manager.albums)
        EXPECT_EQ(files(&album), Files());
    manager.albums.clear();
    EXPECT_EQ(manager.GetPhotoDatas(), 1);
}

TEST_P(AlbumContentsOfEverySchema, AssetsGoToTheFirstAlbumThatHasTheUuid)
{
    LibraryBuilder library(GetParam());
    const AlbumRow holiday = library.album("Holiday");
    library.asset("IMG_0001.JPG").in(holiday);
    OwningManager manager(library);
    manager.prepare();
    CAlbumGroup twin;
    twin.albumKind = AlbumKind::User;
    twin.albumUuid = holiday.uuid();
    twin.albumName = QStringLiteral("First");
    manager.albums.push_back(twin);
    twin.albumName = QStringLiteral("Second");
    manager.albums.push_back(twin);

    manager.GetPhotoDatas();

    const auto &second = manager.albums.back();
    const auto &first = *(manager.albums.end() - 2);
    EXPECT_EQ(files(&second), Files());
    ASSERT_EQ(files(&first), (Files{"IMG_0001.JPG"}));
    EXPECT_EQ(first.photos[0]->albumName, QStringLiteral("First"));
}

TEST_P(AlbumContentsOfEverySchema, UntitledAndSystemAlbumsHaveNoContents)
{
    LibraryBuilder library(GetParam());
    const AlbumRow untitled = library.album("");
    const AlbumRow system = library.album("System").set("ZKIND", 3500);
    library.asset("IMG_0001.JPG").in(untitled).in(library.album(nullptr)).in(system);

    const AlbumContents contents(library);

    // Where uuids are blobs a missing one becomes a text, and so the rows count.
    EXPECT_EQ(contents.result, GetParam().hasBlobUuids ? 3 : 0);
    EXPECT_EQ(files(&contents[untitled]), Files());
}

TEST_P(AlbumContentsOfEverySchema, PhotoStreamMarksItsAssetsAndUserAlbumsDoNot)
{
    LibraryBuilder library(GetParam());
    const AlbumRow stream = library.photoStream();
    const AlbumRow smart = library.album("Holiday");
    const AlbumRow plain = library.album("Friends").set("ZKIND", 1);
    library.asset("IMG_0001.JPG").in(stream).in(smart).in(plain);

    const AlbumContents contents(library);

    EXPECT_TRUE(contents.photo(stream).inUserAlbum);
    EXPECT_EQ(contents.photo(stream).albumName, QString::fromUtf8("我的照片流"));
    EXPECT_FALSE(contents.photo(smart).inUserAlbum);
    EXPECT_FALSE(contents.photo(plain).inUserAlbum);
}

INSTANTIATE_TEST_SUITE_P(Schemas, AlbumContentsOfEverySchema, testing::ValuesIn(allSchemas),
                         SchemaName());

class AlbumContentsFromIos8 : public testing::TestWithParam<Schema>
{
};

TEST_P(AlbumContentsFromIos8, TrashedAssetsAreSkippedUncounted)
{
    LibraryBuilder library(GetParam());
    const AlbumRow holiday = library.album("Holiday");
    library.asset("IMG_0001.JPG").trashedAt(600000000).in(holiday);
    library.asset("IMG_0002.JPG").set("ZTRASHEDSTATE", nullptr).in(holiday);
    library.asset("IMG_0003.JPG").in(holiday);
    const AlbumContents contents(library);
    EXPECT_EQ(contents.result, 1);
    EXPECT_EQ(files(&contents[holiday]), (Files{"IMG_0003.JPG"}));
}

TEST_P(AlbumContentsFromIos8, PhotoStreamLeavesOutWhatHasACloudGuidButCountsIt)
{
    LibraryBuilder library(GetParam());
    const AlbumRow stream = library.photoStream();
    const AlbumRow holiday = library.album("Holiday");
    library.asset("IMG_0001.JPG").set("ZCLOUDASSETGUID", "guid").in(stream).in(holiday);
    library.asset("IMG_0002.JPG").set("ZCLOUDASSETGUID", "").in(stream);
    library.asset("IMG_0003.JPG").in(stream);
    const AlbumContents contents(library);
    EXPECT_EQ(contents.result, 4);
    EXPECT_EQ(files(&contents[stream]), (Files{"IMG_0003.JPG"}));
    EXPECT_EQ(files(&contents[holiday]), (Files{"IMG_0001.JPG"}));
}

INSTANTIATE_TEST_SUITE_P(Schemas, AlbumContentsFromIos8, testing::ValuesIn(schemasFrom(ios8)),
                         SchemaName());

class AlbumContentsBeforeIos8 : public testing::TestWithParam<Schema>
{
};

TEST_P(AlbumContentsBeforeIos8, MissingAlbumUuidBecomesAText)
{
    LibraryBuilder library(GetParam());
    library.asset("IMG_0001.JPG").in(library.album("Empty").set("ZUUID", Blob{}));
    library.asset("IMG_0002.JPG").in(library.album("None").set("ZUUID", nullptr));
    OwningManager manager(library);
    manager.prepare();
    EXPECT_EQ(manager.GetPhotoDatas(), 2);

    CAlbumGroup catchAll;
    catchAll.albumUuid = "0x0";
    manager.albums.push_back(catchAll);
    EXPECT_EQ(manager.GetPhotoDatas(), 2);
    EXPECT_EQ(files(&manager.albums.back()), (Files{"IMG_0001.JPG", "IMG_0002.JPG"}));
}

INSTANTIATE_TEST_SUITE_P(Schemas, AlbumContentsBeforeIos8,
                         testing::Values(ios6, ios7, ios7SubTypes), SchemaName());

TEST(AlbumContentsPass, StatementThatDoesNotMatchTheSchemaGivesNoRows)
{
    LibraryBuilder library(ios14);
    library.asset("IMG_0001.JPG").in(library.album("Holiday"));
    EXPECT_EQ(AlbumContents(library, "13.7").result, 0);
    EXPECT_EQ(AlbumContents(library, "18.0").result, 0);
    EXPECT_EQ(AlbumContents(library, "17.4").result, 1);
}

TEST(AlbumContentsPass, PathThatCannotBeOpenedGivesTheNegatedCode)
{
    const TemporaryFolder folder;
    OwningManager manager(folder.path().string(), "15.0", "iPhone14,2");
    EXPECT_EQ(manager.GetPhotoDatas(), -14);
}
