#include "support/run_on.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

using namespace iosphoto::test;
using testing::HasSubstr;

TEST(ToolAlbums, ListsTheCatalogueAsAnAlignedTable)
{
    LibraryBuilder library(ios15);
    const AlbumRow trip = library.album("Ärger & 旅行");
    library.asset("IMG_0001.JPG").in(trip).set("ZFAVORITE", 1);
    library.asset("IMG_0002.JPG").in(trip);

    EXPECT_EQ(
        runOn(library, "albums"),
        (ToolRun{
            "#  KIND              NAME          COUNT        SIZE  FIRST       LAST        UUID\n"
            "0  Camera Roll                         2      2.0 kB  2020-01-04  2020-01-05\n"
            "1  Photo Library                       0     0 bytes\n"
            "2  Favorites                           1  1000 bytes  2020-01-05  2020-01-05\n"
            "3  User album        Ärger & 旅行      2      2.0 kB  2020-01-04  2020-01-05  "
            "B0000000-0000-0000-0000-000000000001\n"
            "4  Recently Deleted                    0     0 bytes\n",
            "", 0}));
}

TEST(ToolAlbums, FirstAndLastDayAreOfTheSameClock)
{
    LibraryBuilder library(ios15);
    constexpr int year = 365 * 24 * 60 * 60;
    library.asset("OLD.JPG").set("ZDATECREATED", -2 * year); // its day is that of its adding
    library.asset("NEWER.JPG").set("ZDATECREATED", 5 * year);
    EXPECT_EQ(runOn(library, "albums", {"--fields", "kind,firstDay,lastDay"}).out,
              "kind              FIRST       LAST\n"
              "camera-roll       1999-01-02  2005-12-31\n"
              "photo-library\n"
              "recently-deleted\n");
}

TEST(ToolAlbums, ShowsControlCharactersInsteadOfObeyingThem)
{
    LibraryBuilder library(ios15);
    library.album("two\nlines \x1b[31mred \u202Eturned");

    const ToolRun run = runOn(library, "albums");

    EXPECT_THAT(run.out, HasSubstr("two\\nlines \\u001b[31mred \\u202eturned"));
    EXPECT_EQ(run.error, "");
    EXPECT_EQ(run.status, 0);
}

TEST(ToolAlbums, DocumentNamesKindsForMachines)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG")
        .in(library.album("Imported").set("ZKIND", 1552))
        .set("ZCAMERACAPTUREDEVICE", 1);

    const ToolRun run = runOn(library, "albums", {"--json"});
    const auto document = nlohmann::json::parse(run.out);

    EXPECT_EQ(run.error, "");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(document["source"], library.path());
    EXPECT_EQ(document["iosVersion"], "15.0");
    EXPECT_EQ(document["productType"], "iPhone14,2");
    EXPECT_EQ(document["isComplete"], true);
    const auto expected = R"({"index": 3, "kind": "selfies", "kindCode": 12,
        "englishKind": "Selfies from albums", "name": "自拍", "uuid": null, "count": 1,
        "photoCount": 1, "bytes": 1000, "firstCreated": "2020-01-05T10:40:00Z",
        "lastCreated": "2020-01-05T10:40:00Z", "isSmart": false,
        "collectsFromAlbums": true})"_json;
    EXPECT_THAT(document["albums"], testing::Contains(expected));
}

TEST(ToolAlbums, SecondAlbumOfAKindIsMarked)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG").set("ZCAMERACAPTUREDEVICE", 1);
    library.asset("IMG_0002.JPG")
        .in(library.album("Imported").set("ZKIND", 1552))
        .set("ZCAMERACAPTUREDEVICE", 1);
    EXPECT_EQ(runOn(library, "albums", {"--fields", "shownKind,ownName,photoCount"}),
              (ToolRun{"KIND                 NAME      photoCount\n"
                       "Camera Roll                             2\n"
                       "Photo Library                           0\n"
                       "Selfies                                 2\n"
                       "Selfies from albums                     1\n"
                       "User album           Imported           1\n"
                       "Recently Deleted                        0\n",
                       "", 0}));
}

TEST(ToolAlbums, BytesOfAnAlbumDoNotWrapAround)
{
    LibraryBuilder library(ios15);
    const std::int64_t most = std::numeric_limits<std::int64_t>::max();
    library.asset("IMG_0001.JPG").set("ZORIGINALFILESIZE", most);
    library.asset("IMG_0002.JPG").set("ZORIGINALFILESIZE", most);
    EXPECT_THAT(runOn(library, "albums", {"--fields", "kind,bytes", "--csv"}).out,
                HasSubstr("camera-roll," + std::to_string(most) + "\r\n"));
}

TEST(ToolAlbums, TimesOfAnAlbumAreOfDatesThatCanBeTold)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG");
    library.asset("IMG_0002.JPG").set("ZDATECREATED", 123456789012345);
    library.asset("IMG_0003.JPG").set("ZDATECREATED", -123456789012345);
    EXPECT_THAT(
        runOn(library, "albums", {"--fields", "kind,firstCreated,lastCreated", "--csv"}).out,
        HasSubstr("camera-roll,2020-01-05T10:40:00Z,2020-01-05T10:40:00Z\r\n"));
}
