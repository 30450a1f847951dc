#include "support/user_albums.h"

#include <gtest/gtest.h>

using namespace iosphoto;
using namespace iosphoto::test;

class UserAlbumsOfEverySchema : public testing::TestWithParam<Schema>
{
};

TEST_P(UserAlbumsOfEverySchema, AreAppendedInTheTablesOrderBehindWhatIsThere)
{
    LibraryBuilder library(GetParam());
    const AlbumRow holiday = library.album("Holiday");
    const AlbumRow friends = library.album("朋友").set("ZKIND", 1);

    const UserAlbumsRead read(library);

    EXPECT_EQ(read.result, 2);
    ASSERT_EQ(read.names(), (AlbumNames{"Holiday", "朋友"}));
    EXPECT_EQ(read[0].albumUuid, holiday.uuid());
    EXPECT_EQ(read[1].albumUuid, friends.uuid());
    EXPECT_TRUE(read[0].isSmartAlbum);
    EXPECT_FALSE(read[1].isSmartAlbum);
    for (std::size_t i = 0; i < read.size(); ++i) {
        EXPECT_EQ(read[i].albumKind, AlbumKind::User);
        EXPECT_EQ(read[i].albumIndex, static_cast<int>(read.builtIn + i));
        EXPECT_EQ(read[i].albumId, 0);
        EXPECT_TRUE(read[i].photos.empty());
    }
}

TEST_P(UserAlbumsOfEverySchema, RowsOfOtherEntitiesHighKindsOrNoTitleAreLeftOut)
{
    LibraryBuilder library(GetParam());
    library.album("Folder").set("Z_ENT", GetParam().album - 1);
    library.album("System").set("ZKIND", 3500);
    library.album("Higher").set("ZKIND", 4000);
    library.album("Kindless").set("ZKIND", nullptr);
    library.album(nullptr);
    library.photoStream().set("ZTITLE", nullptr);
    library.album("Last").set("ZKIND", 3499);

    const UserAlbumsRead read(library);

    EXPECT_EQ(read.result, 1);
    EXPECT_EQ(read.names(), (AlbumNames{"Last"}));
}

TEST_P(UserAlbumsOfEverySchema, RowWithAUuidThatIsListedIsCountedButDropped)
{
    LibraryBuilder library(GetParam());
    library.album("First");
    library.album("Second");
    library.album("Again");
    library.execute("update ZGENERICALBUM set ZUUID = (select ZUUID from ZGENERICALBUM where Z_PK ="
                    " 1) where ZTITLE = 'Again'");

    UserAlbumsRead read(library);

    EXPECT_EQ(read.result, 3);
    EXPECT_EQ(read.names(), (AlbumNames{"First", "Second"}));
    EXPECT_EQ(read.GetPhotoGroups(), 3);
    EXPECT_EQ(read.size(), 2U);
}

TEST_P(UserAlbumsOfEverySchema, RowWithoutAUuidIsDroppedAsTheBuiltInAlbumsHaveNoneEither)
{
    LibraryBuilder library(GetParam());
    library.album("None").set("ZUUID", nullptr);
    library.album("Empty").set("ZUUID", GetParam().hasBlobUuids ? Value(Blob{}) : Value(""));
    library.album("Holiday");

    const UserAlbumsRead read(library);

    EXPECT_EQ(read.result, 3);
    EXPECT_EQ(read.names(), (AlbumNames{"Holiday"}));
}

TEST_P(UserAlbumsOfEverySchema, FirstRowWithoutAUuidJoinsAListInWhichAllHaveOne)
{
    LibraryBuilder library(GetParam());
    library.album("Holiday");
    library.album("None").set("ZUUID", nullptr);
    library.album("Another").set("ZUUID", nullptr);
    OwningManager manager(library);
    manager.prepare();
    manager.albums.clear();

    EXPECT_EQ(manager.GetPhotoGroups(), 3);

    ASSERT_EQ(manager.albums.size(), 2U);
    EXPECT_EQ(manager.albums[1].albumName, QStringLiteral("None"));
    EXPECT_EQ(manager.albums[1].albumIndex, 1);
}

INSTANTIATE_TEST_SUITE_P(Schemas, UserAlbumsOfEverySchema, testing::ValuesIn(allSchemas),
                         SchemaName());

TEST(UserAlbums, TrashedAlbumsAreLeftOutFromIos8On)
{
    LibraryBuilder library(ios8);
    library.album("Trashed").set("ZTRASHEDSTATE", 1);
    library.album("Dated").set("ZTRASHEDDATE", 600000000);
    library.album("Stateless").set("ZTRASHEDSTATE", nullptr);
    library.album("Zero").set("ZTRASHEDDATE", 0);
    library.album("Kept");
    library.photoStream().set("ZTRASHEDSTATE", 1);

    EXPECT_EQ(UserAlbumsRead(library, "8.0").names(), (AlbumNames{"Zero", "Kept"}));
    EXPECT_EQ(UserAlbumsRead(library, "7.9.9").size(), 6U);
}

TEST(UserAlbums, StatementThatDoesNotMatchTheSchemaGivesNoRows)
{
    LibraryBuilder library(ios7);
    library.album("Holiday");
    const UserAlbumsRead read(library, "8.0"); // the schema has no trash yet
    EXPECT_EQ(read.result, 0);
    EXPECT_EQ(read.size(), 0U);
}

TEST(UserAlbums, PathThatCannotBeOpenedGivesTheNegatedCodeAndNoAlbums)
{
    const TemporaryFolder folder;
    OwningManager manager(folder.path().string(), "15.0", "iPhone14,2");
    EXPECT_EQ(manager.GetPhotoGroups(), -14);
    EXPECT_TRUE(manager.albums.empty());
}
