#include "support/run_on.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

using namespace iosphoto::test;
using testing::AllOf;
using testing::HasSubstr;

class ToolPhotos : public testing::Test
{
protected:
    ToolPhotos()
    {
        const AlbumRow trip = library_.album("Trip");
        const AlbumRow second = library_.album("Trip");
        library_.asset("IMG_0001.JPG").in(trip).set("ZFAVORITE", 1);
        library_.asset("IMG_0002.MOV").in(trip).in(second).video();
        library_.asset("IMG_0003.JPG").set("ZHIDDEN", 1);
    }

    ToolRun photos(const std::vector<std::string> &arguments = {}) const
    {
        return runOn(library_, "photos", arguments);
    }

    ToolRun namesIn(const std::string &album) const
    {
        return photos({"--fields", "fileName", "--album", album});
    }

    LibraryBuilder library_{ios15};
};

TEST_F(ToolPhotos, ListsEachPhotoOnceWithItsAlbums)
{
    EXPECT_EQ(
        photos(),
        (ToolRun{
            "TAKEN                 FILE                           PIXELS        SIZE  WHAT      "
            "ALBUMS\n"
            "2020-01-05 10:40 UTC  DCIM/100APPLE/IMG_0001.JPG  4032x3024  1000 bytes  favorite  "
            "Camera Roll, Favorites, Trip\n"
            "2020-01-04 10:40 UTC  DCIM/100APPLE/IMG_0002.MOV  4032x3024  1000 bytes  video     "
            "Camera Roll, Videos, Trip, Trip\n"
            "2020-01-03 10:40 UTC  DCIM/100APPLE/IMG_0003.JPG  4032x3024  1000 bytes  hidden    "
            "Hidden\n",
            "", 0}));
}

TEST_F(ToolPhotos, AlbumIsFoundByNameKindNumberAndUuid)
{
    for (const char *album :
         {"videos", "Videos", "4", "视频", "b0000000-0000-0000-0000-000000000002"})
        EXPECT_EQ(namesIn(album), fileNames({"IMG_0002.MOV"})) << album;
}

TEST_F(ToolPhotos, NameOfSeveralAlbumsTakesAllAndSaysSo)
{
    EXPECT_EQ(namesIn("trip"),
              (ToolRun{"fileName\nIMG_0001.JPG\nIMG_0002.MOV\n",
                       "iosphoto: 'trip' fits 2 albums, all are shown: Trip, Trip\n", 0}));
}

TEST_F(ToolPhotos, AlbumThatIsNotThereIsWrongUsage)
{
    for (const char *album : {"Nowhere", ""})
        EXPECT_EQ(photos({"--album", album}),
                  (ToolRun{"",
                           std::string("iosphoto: no album fits '") + album +
                               "'; 'iosphoto albums " + library_.path() + "' lists them\n",
                           2}));
}

TEST_F(ToolPhotos, AlbumThatIsNotThereIsOneLineThoughTheDeviceWasGuessed)
{
    EXPECT_EQ(runTool({"photos", library_.path(), "--album", "Nowhere"}),
              (ToolRun{"",
                       "iosphoto: no album fits 'Nowhere'; 'iosphoto albums " + library_.path() +
                           "' lists them\n",
                       2}));
}

TEST_F(ToolPhotos, WhereNoneFitsThereAreHeadingsAndANotice)
{
    const std::string notice =
        "iosphoto: none of the 3 photos fits; leave out an option to see more\n";
    EXPECT_EQ(photos({"--album", "recently-deleted"}),
              (ToolRun{"TAKEN  FILE  PIXELS  SIZE  WHAT  ALBUMS\n", notice, 0}));
    EXPECT_EQ(photos({"--edited", "--csv", "--fields", "uuid,path"}),
              (ToolRun{"uuid,path\r\n", notice, 0}));
    EXPECT_EQ(photos({"--edited", "--jsonl"}), (ToolRun{"", notice, 0}));
    const ToolRun document = photos({"--edited", "--json"});
    EXPECT_EQ(nlohmann::json::parse(document.out)["photos"], nlohmann::json::array());
    EXPECT_EQ(document.error, notice);
    EXPECT_EQ(document.status, 0);
}

TEST(ToolPhotosOfAnEmptyLibrary, AreHeadingsAndARemark)
{
    const LibraryBuilder library(ios15);
    const std::string remark = "iosphoto: the library holds 0 photos\n";
    EXPECT_EQ(runOn(library, "photos", {"--fields", "fileName"}),
              (ToolRun{"fileName\n", remark, 0}));
    EXPECT_EQ(runOn(library, "photos", {"--kind", "live", "--jsonl"}), (ToolRun{"", remark, 0}));
    EXPECT_EQ(runOn(library, "photos", {"--fields", "fileName", "--quiet"}), fileNames({}));
}

TEST_F(ToolPhotos, FieldsMayHaveSpacesAroundTheirCommas)
{
    EXPECT_EQ(photos({"--favorite", "--fields", " fileName , localDay"}),
              (ToolRun{"fileName      DAY\nIMG_0001.JPG  2020-01-05\n", "", 0}));
}

TEST_F(ToolPhotos, TimesAreLocalInTables)
{
    EXPECT_EQ(
        runTool(commandOn(library_, "photos", {"--favorite", "--fields", "created,localDay"}),
                {{"TZ", "EST11"}}),
        (ToolRun{"TAKEN                    DAY\n2020-01-04 23:40 -11:00  2020-01-04\n", "", 0}));
}

TEST_F(ToolPhotos, DatesBeyondAllCalendarsAreUnknown)
{
    // The years -1919, 11508 and 3.9 million.
    for (const std::int64_t beyond : {-123'700'000'000, 300'000'000'000, 123'456'789'012'345}) {
        LibraryBuilder library(ios15);
        library.asset("IMG_0001.JPG").set("ZDATECREATED", beyond);
        const std::vector<std::string> fields = {"--fields", "created,localDay,fileName"};
        EXPECT_EQ(runOn(library, "photos", fields),
                  (ToolRun{"TAKEN  DAY  fileName\n            IMG_0001.JPG\n", "", 0}))
            << beyond;
        EXPECT_THAT(runOn(library, "photos", {"--json"}).out,
                    AllOf(HasSubstr("\"created\": null,"), HasSubstr("\"localDay\": null,")))
            << beyond;
    }
}

TEST_F(ToolPhotos, DocumentHoldsEveryFactAndNullForUnknownOnes)
{
    const ToolRun run = photos({"--album", "favorites", "--json"});
    const auto document = nlohmann::json::parse(run.out);

    EXPECT_EQ(run.error, "");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(document["asOf"], "2020-01-10T00:00:00Z");
    ASSERT_EQ(document["photos"].size(), 1U);
    const auto &photo = document["photos"][0];
    EXPECT_EQ(photo["uuid"], "A0000000-0000-0000-0000-000000000001");
    EXPECT_EQ(photo["mediaKind"], "photo");
    EXPECT_EQ(photo["path"], "DCIM/100APPLE/IMG_0001.JPG");
    EXPECT_EQ(photo["created"], "2020-01-05T10:40:00Z");
    for (const char *key : {"originalFileName", "trashed", "goes", "daysLeft", "burstFrames"})
        EXPECT_EQ(photo.at(key), nullptr) << key;
    EXPECT_EQ(photo["isFavorite"], true);
    EXPECT_EQ(photo["isVideo"], false);
    EXPECT_EQ(photo["fileSize"], 1000);
    std::vector<std::string> kinds;
    for (const auto &album : photo["albums"])
        kinds.push_back(album["kind"]);
    EXPECT_EQ(kinds, (std::vector<std::string>{"camera-roll", "favorites", "user"}));
}

TEST_F(ToolPhotos, KnowsOfAPhotoWhatAnyAlbumKnows)
{
    library_.asset("IMG_0004.JPG")
        .in(library_.album("Imported").set("ZKIND", 1552))
        .set("ZSAVEDASSETTYPE", 256)
        .set("ZUUID", "00000000-0000-0000-0000-000000000004")
        .set("ZDURATION", 33.4)
        .set("ZCAMERACAPTUREDEVICE", 1);

    EXPECT_EQ(photos({"--album", "photo-library", "--fields", "what,albums"}),
              (ToolRun{"WHAT    ALBUMS\n"
                       "selfie  Photo Library, Selfies from albums, Imported\n",
                       "", 0}));
    EXPECT_THAT(photos({"--album", "photo-library", "--json"}).out,
                HasSubstr("\"duration\": 33.4,"));
}

TEST_F(ToolPhotos, WithoutUuidEveryRecordStandsForItself)
{
    library_.execute("update ZASSET set ZUUID = null");
    EXPECT_EQ(namesIn("camera-roll"), fileNames({"IMG_0001.JPG", "IMG_0002.MOV"}));
}

TEST_F(ToolPhotos, FieldsAreChosenAndOrderedInEveryFormat)
{
    const std::vector<std::string> only = {"--favorite", "--fields", "created,uuid,pixels,created"};
    const auto as = [&](const std::string &format) {
        std::vector<std::string> arguments = only;
        arguments.push_back(format);
        return photos(arguments);
    };
    const std::string uuid = "A0000000-0000-0000-0000-000000000001";
    EXPECT_EQ(photos(only), (ToolRun{"TAKEN                 uuid                                  "
                                     "   PIXELS\n"
                                     "2020-01-05 10:40 UTC  " +
                                         uuid + "  4032x3024\n",
                                     "", 0}));
    EXPECT_EQ(as("--csv"), (ToolRun{"created,uuid,pixels\r\n"
                                    "2020-01-05T10:40:00Z," +
                                        uuid + ",4032x3024\r\n",
                                    "", 0}));
    EXPECT_EQ(as("--jsonl"),
              (ToolRun{"{\"source\":\"" + library_.path() +
                           "\",\"sourceBytes\":null,\"created\":\"2020-01-05T10:40:00Z\","
                           "\"uuid\":\"" +
                           uuid + "\",\"pixels\":\"4032x3024\"}\n",
                       "", 0}));
    EXPECT_THAT(as("--json").out, HasSubstr("{\n      \"created\": \"2020-01-05T10:40:00Z\",\n"
                                            "      \"uuid\": \"" +
                                            uuid + "\",\n      \"pixels\": \"4032x3024\"\n"));
}
