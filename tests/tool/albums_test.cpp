#include "support/library_builder.h"
#include "support/run_tool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

using namespace iosphoto::test;
using testing::HasSubstr;

namespace {

const std::string assumedIos17 =
    "iosphoto: reading as iOS 17 (the newest with these tables and columns) and iPhone14,2 (hides "
    "no album), as of 2020-02-01 00:00 UTC\n";

} // namespace

TEST(ToolAlbums, ListsTheCatalogueAsAnAlignedTable)
{
    LibraryBuilder library(ios15);
    const AlbumRow trip = library.album("Ärger & 旅行");
    library.asset("IMG_0001.JPG").in(trip).set("ZFAVORITE", 1);
    library.asset("IMG_0002.JPG").in(trip);

    EXPECT_EQ(
        runTool({"albums", library.path(), "--as-of", "2020-02-01"}),
        (ToolRun{"#  KIND              NAME          COUNT  UUID\n"
                 "0  Camera Roll       相机胶卷          2\n"
                 "1  Photo Library     照片图库          0\n"
                 "2  Favorites         个人收藏          1\n"
                 "3  User album        Ärger & 旅行      2  B0000000-0000-0000-0000-000000000001\n"
                 "4  Recently Deleted  最近删除          0\n",
                 assumedIos17, 0}));
}

TEST(ToolAlbums, ShowsControlCharactersInsteadOfObeyingThem)
{
    LibraryBuilder library(ios15);
    library.album("two\nlines \x1b[31mred \u202Eturned");

    const ToolRun run = runTool({"albums", library.path()});

    EXPECT_THAT(run.out, HasSubstr("two\\nlines \\u001b[31mred \\u202eturned"));
    EXPECT_EQ(run.status, 0);
}

TEST(ToolAlbums, DocumentNamesKindsForMachines)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG")
        .in(library.album("Imported").set("ZKIND", 1552))
        .set("ZCAMERACAPTUREDEVICE", 1);

    const ToolRun run = runTool({"albums", library.path(), "--json"});
    const auto document = nlohmann::json::parse(run.out);

    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(document["iosVersion"], "17");
    EXPECT_EQ(document["productType"], "iPhone14,2");
    EXPECT_EQ(document["isComplete"], true);
    const auto expected = R"({"index": 3, "kind": "selfies", "kindCode": 12,
        "englishKind": "Selfies from albums", "name": "自拍", "uuid": null, "count": 1,
        "photoCount": 1, "isSmart": false, "collectsFromAlbums": true})"_json;
    EXPECT_THAT(document["albums"], testing::Contains(expected));
}
