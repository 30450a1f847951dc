#include "support/library_builder.h"
#include "support/run_tool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

using namespace iosphoto::test;
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

    ToolRun photos(std::vector<std::string> arguments = {})
    {
        arguments.insert(arguments.begin(),
                         {"photos", library_.path(), "--ios", "15.0", "--product", "iPhone14,2"});
        return runTool(arguments);
    }

    /// The file names that a table lists, in order.
    static std::vector<std::string> listed(const ToolRun &run)
    {
        std::vector<std::string> names;
        for (std::size_t at = 0; (at = run.out.find("IMG_", at)) != std::string::npos; ++at)
            names.push_back(run.out.substr(at, std::string("IMG_0001").size()));
        return names;
    }

    LibraryBuilder library_{ios15};
};

TEST_F(ToolPhotos, ListsEachPhotoOnceWithItsAlbums)
{
    EXPECT_EQ(
        photos(),
        (ToolRun{
            "DAY         FILE                           PIXELS        SIZE  WHAT      ALBUMS\n"
            "2020-01-05  DCIM/100APPLE/IMG_0001.JPG  4032x3024  1000 bytes  favorite  Camera Roll, "
            "Favorites, Trip\n"
            "2020-01-04  DCIM/100APPLE/IMG_0002.MOV  4032x3024  1000 bytes  video     Camera Roll, "
            "Videos, Trip, Trip\n"
            "2020-01-03  DCIM/100APPLE/IMG_0003.JPG  4032x3024  1000 bytes  hidden    Hidden\n",
            "", 0}));
}

TEST_F(ToolPhotos, AlbumIsFoundByNameKindNumberAndUuid)
{
    for (const char *album : {"videos", "Videos", "4", "视频"})
        EXPECT_EQ(listed(photos({"--album", album})), (std::vector<std::string>{"IMG_0002"}))
            << album;
    EXPECT_EQ(listed(photos({"--album", "b0000000-0000-0000-0000-000000000002"})),
              (std::vector<std::string>{"IMG_0002"}));
    EXPECT_EQ(listed(photos({"--album", "recently-deleted"})), (std::vector<std::string>{}));
}

TEST_F(ToolPhotos, NameOfSeveralAlbumsTakesAllAndSaysSo)
{
    const ToolRun run = photos({"--album", "trip"});
    EXPECT_EQ(listed(run), (std::vector<std::string>{"IMG_0001", "IMG_0002"}));
    EXPECT_EQ(run.error, "iosphoto: 'trip' fits 2 albums, all are shown: Trip, Trip\n");
    EXPECT_EQ(run.status, 0);
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

TEST_F(ToolPhotos, DocumentHoldsEveryFactAndNullForUnknownOnes)
{
    const ToolRun run = photos({"--album", "favorites", "--json"});
    const auto document = nlohmann::json::parse(run.out);

    ASSERT_EQ(document["photos"].size(), 1U);
    const auto &photo = document["photos"][0];
    EXPECT_EQ(photo["uuid"], "A0000000-0000-0000-0000-000000000001");
    EXPECT_EQ(photo["created"], "2020-01-05T10:40:00Z");
    EXPECT_EQ(photo["originalFileName"], nullptr);
    EXPECT_EQ(photo["isFavorite"], true);
    EXPECT_EQ(photo["isVideo"], false);
    EXPECT_EQ(photo["fileSize"], 1000);
    std::vector<std::string> kinds;
    for (const auto &album : photo["albums"])
        kinds.push_back(album["kind"]);
    EXPECT_EQ(kinds, (std::vector<std::string>{"camera-roll", "favorites", "user"}));
}

TEST_F(ToolPhotos, AlbumThatIsNotThereIsOneLineThoughTheDeviceWasGuessed)
{
    const ToolRun run = runTool({"photos", library_.path(), "--album", "Nowhere"});
    EXPECT_EQ(run.error, "iosphoto: no album fits 'Nowhere'; 'iosphoto albums " + library_.path() +
                             "' lists them\n");
}

TEST_F(ToolPhotos, KnowsOfAPhotoWhatAnyAlbumKnows)
{
    library_.asset("IMG_0004.JPG")
        .in(library_.album("Imported").set("ZKIND", 1552))
        .set("ZSAVEDASSETTYPE", 256)
        .set("ZUUID", "00000000-0000-0000-0000-000000000004")
        .set("ZDURATION", 33.5)
        .set("ZCAMERACAPTUREDEVICE", 1);

    EXPECT_THAT(photos({"--album", "photo-library"}).out,
                HasSubstr("selfie  Photo Library, Selfies from albums, Imported"));
    EXPECT_THAT(photos({"--album", "photo-library", "--json"}).out,
                HasSubstr("\"duration\": 33.5"));
}

TEST_F(ToolPhotos, WithoutUuidEveryRecordStandsForItself)
{
    library_.execute("update ZASSET set ZUUID = null");
    EXPECT_EQ(listed(photos({"--album", "camera-roll"})),
              (std::vector<std::string>{"IMG_0001", "IMG_0002"}));
}
