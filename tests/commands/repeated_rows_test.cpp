// Rows that cannot be told apart by their uuids, or by the part of their keys that the library
// keeps.
#include "support/json_schema.h"
#include "support/run_on.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

using namespace iosphoto::test;
using nlohmann::json;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

json accountOf(const LibraryBuilder &library)
{
    const json info = json::parse(runOn(library, "info", {"--json"}).out);
    EXPECT_EQ(schemaComplaints("info", info), "");
    return info.at("account");
}

std::vector<json> photosOf(const LibraryBuilder &library,
                           const std::vector<std::string> &options = {})
{
    std::vector<std::string> all = {"--json"};
    all.insert(all.end(), options.begin(), options.end());
    const json document = json::parse(runOn(library, "photos", all).out);
    EXPECT_EQ(schemaComplaints("photos", document), "");
    return document.at("photos");
}

std::vector<std::string> namesOf(const std::vector<json> &photos)
{
    std::vector<std::string> names;
    for (const json &photo : photos)
        names.push_back(photo["fileName"]);
    return names;
}

/// Gives a row a key of which the low 32 bits are 1.
void moveBeyond32Bits(LibraryBuilder &library, const AssetRow &row)
{
    const std::string old = std::to_string(row.key());
    library.execute("update ZASSET set Z_PK = 4294967297 where Z_PK = " + old);
    library.execute("update ZADDITIONALASSETATTRIBUTES set ZASSET = 4294967297 where ZASSET = " +
                    old);
}

} // namespace

TEST(RowsOfOneUuid, AreAllShown)
{
    LibraryBuilder library(ios15);
    library.asset("A.JPG").set("ZUUID", "SAME").set("ZFAVORITE", 1);
    library.asset("B.JPG").set("ZUUID", "SAME");
    library.asset("A.JPG").set("ZUUID", "SAME");
    const std::vector<json> photos = photosOf(library);
    EXPECT_THAT(namesOf(photos), ElementsAre("A.JPG", "B.JPG", "A.JPG"));
    EXPECT_EQ(photos.at(0)["isFavorite"], true);
    EXPECT_EQ(photos.at(1)["isFavorite"], false);
    EXPECT_EQ(photos.at(2)["isFavorite"], false);
    EXPECT_EQ(accountOf(library)["listed"], 3);
}

TEST(RowsOfOneUuid, AreInTheirOwnAlbums)
{
    LibraryBuilder library(ios15);
    const AlbumRow trip = library.album("Trip");
    library.asset("A.JPG").set("ZUUID", "SAME");
    library.asset("B.JPG").set("ZUUID", "SAME").in(trip);
    const std::vector<json> photos = photosOf(library, {"--album", "Trip"});
    EXPECT_THAT(namesOf(photos), ElementsAre("B.JPG"));
}

TEST(RowsOfOneUuid, GoFromTheTrashEachInItsTime)
{
    LibraryBuilder library(ios15);
    for (const int ago : {3, 10})
        library.asset("A.JPG").set("ZUUID", "SAME").trashedAt(readingTime - ago * days);
    const std::vector<json> photos = photosOf(library);
    ASSERT_EQ(photos.size(), 2U);
    EXPECT_EQ(photos[0]["daysLeft"], 27);
    EXPECT_EQ(photos[1]["daysLeft"], 20);
}

TEST(RowsOfOneUuid, AreComparedEachWithItsOwn)
{
    LibraryBuilder before(ios15);
    LibraryBuilder after(ios15);
    for (LibraryBuilder *const library : {&before, &after}) {
        library->asset("A.JPG").set("ZUUID", "SAME");
        library->asset("B.JPG").set("ZUUID", "SAME");
    }
    after.execute("update ZASSET set ZFAVORITE = 1 where ZFILENAME = 'B.JPG'");
    const ToolRun run = runTool({"diff", before.path(), after.path()});
    EXPECT_THAT(run.out, HasSubstr("B.JPG  now a favorite\n"));
    EXPECT_THAT(run.out, HasSubstr("\n1 changed\n"));
}

TEST(RowsOfOneUuid, ThatOnlyTheirKeysTellApartAreRepeatedWhereAnAlbumHasNoKeys)
{
    LibraryBuilder library(ios15);
    library.asset("A.JPG").synced();
    const std::string uuid = library.asset("A.JPG").synced().uuid();
    library.execute("update ZASSET set ZUUID = '" + uuid + "'");
    EXPECT_EQ(photosOf(library).size(), 1U);
    const json account = accountOf(library);
    EXPECT_EQ(account["listed"], 1);
    EXPECT_EQ(account["leftOut"]["repeated"], 1);
    const std::vector<json> leftOut = photosOf(library, {"--left-out"});
    ASSERT_EQ(leftOut.size(), 1U);
    EXPECT_EQ(leftOut[0]["leftOutBecause"], "repeated");
    EXPECT_THAT(runOn(library, "info").out,
                HasSubstr("- left out: with the uuid and file of another"));
}

TEST(RowWithoutAUuid, IsShownOnce)
{
    LibraryBuilder library(ios15);
    const AlbumRow trip = library.album("Trip");
    library.asset("A.JPG").set("ZUUID", nullptr).set("ZFAVORITE", 1).in(trip);
    library.asset("B.JPG").set("ZUUID", nullptr).set("ZFAVORITE", 1);
    const std::vector<json> photos = photosOf(library);
    ASSERT_THAT(namesOf(photos), ElementsAre("A.JPG", "B.JPG"));
    EXPECT_EQ(photos[0]["uuid"], nullptr);
    EXPECT_EQ(photos[0]["albums"].size(), 2U); // an album's rows without a uuid are skipped
    EXPECT_EQ(photos[1]["albums"].size(), 2U);
}

TEST(KeyBeyond32Bits, IsNotTakenForThatOfAnotherRow)
{
    LibraryBuilder library(ios15);
    library.asset("LISTED.JPG");
    moveBeyond32Bits(library, library.asset("GONE.JPG").trashedAt(readingTime - 300 * days));
    const json account = accountOf(library);
    EXPECT_EQ(account["listed"], 1);
    EXPECT_EQ(account["leftOut"]["trashedTooLong"], 1);
    const std::vector<json> photos = photosOf(library, {"--with-left-out"});
    ASSERT_THAT(namesOf(photos), ElementsAre("LISTED.JPG", "GONE.JPG"));
    EXPECT_EQ(photos[0]["assetId"], 1);
    EXPECT_EQ(photos[1]["assetId"], nullptr);
}

TEST(KeyBeyond32Bits, HidesNoRowWhoseKeyEndsAlike)
{
    LibraryBuilder library(ios15);
    library.asset("GONE.JPG").trashedAt(readingTime - 300 * days);
    moveBeyond32Bits(library, library.asset("LISTED.JPG").video().set("ZHIDDEN", 1));
    const json account = accountOf(library);
    EXPECT_EQ(account["listed"], 1);
    EXPECT_EQ(account["leftOut"]["trashedTooLong"], 1);
    const std::vector<json> photos = photosOf(library);
    ASSERT_THAT(namesOf(photos), ElementsAre("LISTED.JPG"));
    EXPECT_EQ(photos[0]["assetId"], nullptr);
    EXPECT_EQ(photos[0]["isVideo"], true);
}
