#include "support/catalogue.h"

#include <gtest/gtest.h>

#include <limits>

using namespace iosphoto;
using namespace iosphoto::test;

namespace {

/// A manager that has read the albums of the table, and nothing else.
class UserAlbumsRead : public OwningManager
{
public:
    explicit UserAlbumsRead(const LibraryBuilder &library)
        : UserAlbumsRead(library, library.schema().iosVersion)
    {
    }
    UserAlbumsRead(const LibraryBuilder &library, const std::string &ios)
        : OwningManager(library.path(), ios, library.schema().productType)
    {
        prepare();
        builtIn = albums.size();
        result = GetPhotoGroups();
    }

    /// How many albums the table gave.
    std::size_t size() const { return albums.size() - builtIn; }
    const CAlbumGroup &operator[](std::size_t index) const { return albums.at(builtIn + index); }
    AlbumNames names() const
    {
        const AlbumNames all = albumNames(albums);
        return {all.begin() + static_cast<std::ptrdiff_t>(builtIn), all.end()};
    }

    std::size_t builtIn = 0;
    int result = 0;
};

} // namespace

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

TEST_P(UserAlbumsOfEverySchema, PhotoStreamIsSmartAndHasANameOfOurs)
{
    LibraryBuilder library(GetParam());
    const AlbumRow titled = library.photoStream().set("ZKIND", 1);
    const AlbumRow untitled = library.photoStream().set("ZTITLE", "");

    const UserAlbumsRead read(library);

    ASSERT_EQ(read.names(), (AlbumNames{"我的照片流", "我的照片流"}));
    EXPECT_EQ(read[0].albumUuid, titled.uuid());
    EXPECT_EQ(read[1].albumUuid, untitled.uuid());
    for (std::size_t i = 0; i < read.size(); ++i) {
        EXPECT_EQ(read[i].albumKind, AlbumKind::PhotoStream);
        EXPECT_TRUE(read[i].isSmartAlbum);
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

TEST_P(UserAlbumsOfEverySchema, EmptyTitleKeepsTheKindOfThePhotoLibrary)
{
    LibraryBuilder library(GetParam());
    library.album("");

    const UserAlbumsRead read(library);

    ASSERT_EQ(read.names(), (AlbumNames{""}));
    EXPECT_EQ(read[0].albumKind, AlbumKind::PhotoLibrary);
    EXPECT_TRUE(read[0].isSmartAlbum);
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

TEST(UserAlbums, OnlyKindTwoCountsAsMadeOnTheDevice)
{
    LibraryBuilder library(ios15);
    const std::pair<int, bool> kinds[] = {{0, false}, {1, false},    {2, true},
                                          {3, false}, {1552, false}, {-2, false}};
    for (const auto &kind : kinds)
        library.album("Kind " + std::to_string(kind.first)).set("ZKIND", kind.first);

    const UserAlbumsRead read(library);

    ASSERT_EQ(read.size(), std::size(kinds));
    for (std::size_t i = 0; i < read.size(); ++i)
        EXPECT_EQ(read[i].isSmartAlbum, kinds[i].second) << kinds[i].first;
}

TEST(UserAlbums, CountIsTheSumOfTheCachedCountsAndWraps)
{
    struct
    {
        Value photos;
        Value videos;
        std::int32_t sum;
    } const cases[] = {
        {12, 3, 15},
        {nullptr, nullptr, 0},
        {7, nullptr, 7},
        {nullptr, 5, 5},
        {std::numeric_limits<std::int32_t>::max(), 1, std::numeric_limits<std::int32_t>::min()},
        {-5, 3, -2},
        {std::int64_t{4294967301}, 0, 5},
    };
    LibraryBuilder library(ios15);
    for (const auto &row : cases)
        library.album("Holiday")
            .set("ZCACHEDCOUNT", 99)
            .set("ZCACHEDPHOTOSCOUNT", row.photos)
            .set("ZCACHEDVIDEOSCOUNT", row.videos);

    const UserAlbumsRead read(library);

    ASSERT_EQ(read.size(), std::size(cases));
    for (std::size_t i = 0; i < read.size(); ++i)
        EXPECT_EQ(read[i].albumCount, cases[i].sum) << "case " << i;
}

TEST(UserAlbums, EntityOfAnotherNameKeepsTitleAndTheKindOfThePhotoLibrary)
{
    for (const char *name : {"'Folder'", "'album'", "null"}) {
        SCOPED_TRACE(name);
        LibraryBuilder library(ios15);
        library.album("Holiday").set("ZKIND", 1);
        library.album("Made here");
        library.execute(std::string("update Z_PRIMARYKEY set Z_NAME = ") + name +
                        " where Z_NAME = 'Album'");
        OwningManager manager(library);
        manager.prepare();
        manager.albumEntity = library.schema().album;
        const std::size_t builtIn = manager.albums.size();

        EXPECT_EQ(manager.GetPhotoGroups(), 2);

        ASSERT_EQ(manager.albums.size(), builtIn + 2);
        const CAlbumGroup &holiday = manager.albums[builtIn];
        EXPECT_EQ(holiday.albumName, QStringLiteral("Holiday"));
        EXPECT_EQ(holiday.albumKind, AlbumKind::PhotoLibrary);
        EXPECT_FALSE(holiday.isSmartAlbum);
        EXPECT_TRUE(manager.albums[builtIn + 1].isSmartAlbum);
    }
}

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

TEST(UserAlbums, UuidsAreTextFromIos8OnAndBytesInHexBelow)
{
    LibraryBuilder library(ios8);
    library.album("Holiday").set("ZUUID", "Ab-1");
    EXPECT_EQ(UserAlbumsRead(library, "8.0")[0].albumUuid, "Ab-1");
    EXPECT_EQ(UserAlbumsRead(library, "7.1")[0].albumUuid, "41622d31");
}

TEST(UserAlbums, SixteenBytesBecome32LowerCaseHexDigits)
{
    LibraryBuilder library(ios7);
    const char bytes[] = "\x00\x11\x22\x33\x44\x55\x66\x77\x88\x99\xAA\xBB\xCC\xDD\xEE\xFF";
    library.album("Holiday").set("ZUUID", Blob{std::string(bytes, 16)});
    EXPECT_EQ(UserAlbumsRead(library)[0].albumUuid, "00112233445566778899aabbccddeeff");
}

TEST(UserAlbums, StatementThatDoesNotFitTheSchemaGivesNoRows)
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
