// What an album is called by: in the user's language in texts, by the catalogue's name in
// documents.
#include "support/csv_reader.h"
#include "support/run_on.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

using namespace iosphoto::test;
using testing::HasSubstr;
using testing::Not;

namespace {

/// A phone with what a computer once imported: both albums, each with a photo.
class ImportedAlbums : public testing::Test
{
protected:
    ImportedAlbums()
    {
        library_.asset("IMG_0001.JPG").in(library_.album(rollTitle_));
        library_.asset("IMG_0002.JPG").in(library_.album(libraryTitle_).set("ZKIND", 1552));
    }

    ToolRun photos(const std::string &album, const std::string &language) const
    {
        return runOn(library_, "photos",
                     {"--album", album, "--lang", language, "--fields", "fileName,albums"});
    }

    LibraryBuilder library_{ios15};
    const std::string rollTitle_ = "电脑导入相机胶卷";
    const std::string libraryTitle_ = "电脑导入照片图库";
};

} // namespace

TEST_F(ImportedAlbums, AreShownInTheLanguageOfTheUser)
{
    EXPECT_THAT(runOn(library_, "albums").out, HasSubstr("  Camera Roll from computer  "));
    EXPECT_THAT(runOn(library_, "albums").out, HasSubstr("  Photo Library from computer  "));
    EXPECT_THAT(runOn(library_, "albums").out, Not(HasSubstr("电脑")));
    EXPECT_THAT(runOn(library_, "photos").out,
                HasSubstr("Camera Roll, Camera Roll from computer\n"));
    EXPECT_THAT(runOn(library_, "albums", {"--lang", "zh"}).out, HasSubstr(rollTitle_));
    EXPECT_THAT(runOn(library_, "photos", {"--lang", "zh"}).out,
                HasSubstr("相机胶卷、" + rollTitle_ + "\n"));
}

TEST_F(ImportedAlbums, AreFoundByTheNameThatIsShownAndByThatOfTheCatalogue)
{
    const std::string found = "IMG_0001.JPG  Camera Roll, Camera Roll from computer\n";
    EXPECT_THAT(photos("camera roll from computer", "en").out, HasSubstr(found));
    EXPECT_EQ(photos(rollTitle_, "en"), photos("Camera Roll from computer", "en"));
    EXPECT_EQ(photos("Camera Roll from computer", "zh"), photos(rollTitle_, "zh"));
    EXPECT_THAT(photos("photo library from computer", "en").out, HasSubstr("IMG_0002.JPG"));
}

TEST_F(ImportedAlbums, KeepTheCataloguesNameForMachines)
{
    for (const char *language : {"en", "zh"}) {
        const auto albums = nlohmann::json::parse(
            runOn(library_, "albums", {"--json", "--lang", language}).out)["albums"];
        EXPECT_EQ(albums[2]["name"], rollTitle_);
        EXPECT_EQ(albums[3]["name"], libraryTitle_);
        EXPECT_EQ(
            readCsv(runOn(library_, "albums", {"--csv", "--lang", language}).out)[2].at("name"),
            rollTitle_);
    }
}

TEST_F(ImportedAlbums, AreCalledByOneNameInCsvAsTheBuiltInOnesAre)
{
    for (const char *language : {"en", "zh"})
        EXPECT_EQ(
            readCsv(runOn(library_, "photos", {"--csv", "--lang", language}).out)[0].at("albums"),
            "Camera Roll; Camera Roll from computer");
}

TEST(AlbumsAsked, ThatFitMoreThanOneNameAreShownOnce)
{
    LibraryBuilder library(ios15);
    const AlbumRow trip = library.album("Trip");
    library.asset("1.JPG").in(trip).set("ZFAVORITE", 1);
    library.asset("2.JPG").set("ZFAVORITE", 1);
    library.asset("3.JPG");
    EXPECT_EQ(runOn(library, "photos",
                    {"--album", "trip", "--album", "Favorites", "--fields", "fileName"}),
              fileNames({"1.JPG", "2.JPG"}));
    EXPECT_EQ(runOn(library, "photos", {"--album", "trip", "--album", "Zanzibar"}).status, 2);
}
