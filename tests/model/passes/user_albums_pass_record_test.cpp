#include "support/user_albums.h"

#include <gtest/gtest.h>

#include <limits>

using namespace iosphoto;
using namespace iosphoto::test;

class UserAlbumOfEverySchema : public testing::TestWithParam<Schema>
{
};

TEST_P(UserAlbumOfEverySchema, PhotoStreamIsSmartAndHasANameOfOurs)
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

TEST_P(UserAlbumOfEverySchema, EmptyTitleKeepsTheKindOfThePhotoLibrary)
{
    LibraryBuilder library(GetParam());
    library.album("");

    const UserAlbumsRead read(library);

    ASSERT_EQ(read.names(), (AlbumNames{""}));
    EXPECT_EQ(read[0].albumKind, AlbumKind::PhotoLibrary);
    EXPECT_TRUE(read[0].isSmartAlbum);
}

INSTANTIATE_TEST_SUITE_P(Schemas, UserAlbumOfEverySchema, testing::ValuesIn(allSchemas),
                         SchemaName());

TEST(UserAlbum, OnlyKindTwoCountsAsMadeOnTheDevice)
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

TEST(UserAlbum, CountIsTheSumOfTheCachedCountsAndWraps)
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

TEST(UserAlbum, EntityOfAnotherNameKeepsTitleAndTheKindOfThePhotoLibrary)
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

TEST(UserAlbum, UuidsAreTextFromIos8OnAndBytesInHexBelow)
{
    LibraryBuilder library(ios8);
    library.album("Holiday").set("ZUUID", "Ab-1");
    EXPECT_EQ(UserAlbumsRead(library, "8.0")[0].albumUuid, "Ab-1");
    EXPECT_EQ(UserAlbumsRead(library, "7.1")[0].albumUuid, "41622d31");
}

TEST(UserAlbum, SixteenBytesBecome32LowerCaseHexDigits)
{
    LibraryBuilder library(ios7);
    const char bytes[] = "\x00\x11\x22\x33\x44\x55\x66\x77\x88\x99\xAA\xBB\xCC\xDD\xEE\xFF";
    library.album("Holiday").set("ZUUID", Blob{std::string(bytes, 16)});
    EXPECT_EQ(UserAlbumsRead(library)[0].albumUuid, "00112233445566778899aabbccddeeff");
}
