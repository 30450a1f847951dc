// A date that a row does not have is null, though records hold the beginning of 2001 for it.
#include "support/run_on.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace iosphoto::test;
using testing::HasSubstr;

namespace {

constexpr const char *dates = "fileName,created,createdSince2001,localDay,modified,added";

std::string shown(const LibraryBuilder &library, const std::string &fields = dates,
                  const std::vector<std::string> &options = {})
{
    std::vector<std::string> all = {"--fields", fields, "--csv"};
    all.insert(all.end(), options.begin(), options.end());
    const std::string out = runOn(library, "photos", all).out;
    return out.substr(out.find('\n') + 1);
}

} // namespace

TEST(MissingDates, AreNull)
{
    LibraryBuilder library(ios15);
    library.asset("A.JPG")
        .set("ZDATECREATED", nullptr)
        .set("ZMODIFICATIONDATE", nullptr)
        .set("ZADDEDDATE", nullptr);
    EXPECT_EQ(shown(library), "A.JPG,,,,,\r\n");
}

TEST(MissingDates, AreTextsToo)
{
    LibraryBuilder library(ios15);
    library.asset("A.JPG").set("ZDATECREATED", "soon");
    EXPECT_THAT(shown(library), HasSubstr("A.JPG,,,,"));
}

TEST(MissingDates, AreTextsThatBeginWithANumberToo)
{
    LibraryBuilder library(ios15);
    library.asset("A.JPG")
        .set("ZDATECREATED", "2017-05-05")
        .set("ZMODIFICATIONDATE", "2017-05-05")
        .set("ZADDEDDATE", "2017-05-05");
    library.asset("B.JPG").set("ZDATECREATED", "2017-05-05").set("ZSAVEDASSETTYPE", 4);
    EXPECT_EQ(shown(library), "A.JPG,,,,,\r\n");
    EXPECT_THAT(shown(library, dates, {"--left-out"}), HasSubstr("B.JPG,,,,"));
}

TEST(MissingDates, AreNotThoseOfTheBeginningOf2001)
{
    LibraryBuilder library(ios15);
    library.asset("A.JPG")
        .set("ZDATECREATED", 0)
        .set("ZMODIFICATIONDATE", 0.25)
        .set("ZADDEDDATE", 0);
    EXPECT_EQ(shown(library), "A.JPG,2001-01-01T00:00:00Z,0,2001-01-01,2001-01-01T00:00:00Z,"
                              "2001-01-01T00:00:00Z\r\n");
}

TEST(MissingDates, OnTheOldestSchemaAreNotThoseOfTheBeginningOf2001)
{
    LibraryBuilder library(ios6);
    library.cameraRollAsset("A.JPG").set("ZDATECREATED", 0);
    library.cameraRollAsset("B.JPG").set("ZDATECREATED", nullptr);
    EXPECT_EQ(runTool({"photos", library.path(), "--csv", "--fields", "fileName,created,added",
                       "--ios", ios6.iosVersion})
                  .out,
              "fileName,created,added\r\n"
              "A.JPG,2001-01-01T00:00:00Z,2001-01-01T00:00:00Z\r\nB.JPG,,\r\n");
}

TEST(MissingDates, MatchNoTimesAndComeLast)
{
    LibraryBuilder library(ios15);
    library.asset("NONE.JPG").set("ZDATECREATED", nullptr);
    library.asset("EARLY.JPG").set("ZDATECREATED", -1000);
    EXPECT_EQ(shown(library, "fileName", {"--until", "2100-01-01"}), "EARLY.JPG\r\n");
    EXPECT_EQ(shown(library, "fileName"), "EARLY.JPG\r\nNONE.JPG\r\n");
}

TEST(MissingDates, AreNotTheFirstOfALibraryOrAnAlbum)
{
    LibraryBuilder library(ios15);
    library.asset("A.JPG");
    library.asset("B.JPG").set("ZDATECREATED", nullptr);
    EXPECT_THAT(runOn(library, "info").out, HasSubstr("First taken  2020-01-05 10:40 UTC\n"));
    EXPECT_THAT(runOn(library, "albums", {"--csv", "--fields", "firstCreated,firstDay"}).out,
                HasSubstr("2020-01-05T10:40:00Z,2020-01-05\r\n"));
}

TEST(AlbumDays, AreOfTheTimesOfCreation)
{
    LibraryBuilder library(ios15);
    // Before 2001, so that the record's own day is that of its adding.
    library.asset("OLD.JPG").set("ZDATECREATED", -86400).set("ZADDEDDATE", 600000000);
    library.asset("NEW.JPG").set("ZDATECREATED", 86400);
    EXPECT_THAT(runOn(library, "albums", {"--csv", "--fields", "firstDay,lastDay"}).out,
                HasSubstr("2000-12-31,2001-01-02\r\n"));
}
