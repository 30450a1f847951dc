// "Did you mean" for what a person mistyped.
#include "support/expect_failure.h"
#include "support/run_on.h"

using namespace iosphoto::test;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

TEST(Suggestion, IsMadeForACommand)
{
    expectFailure(runTool({"alubms", "x"}),
                  "'alubms' is neither a command nor a file that is there; see iosphoto --help; "
                  "did you mean 'albums'?\n",
                  2);
    EXPECT_THAT(runTool({"--lang", "zh", "alubms"}).error, EndsWith("；是否想输入“albums”？\n"));
    EXPECT_THAT(runTool({"hlep"}).error, EndsWith("; did you mean 'help'?\n"));
    EXPECT_THAT(runTool({"help", "phtoos"}).error, EndsWith("; did you mean 'photos'?\n"));
}

TEST(Suggestion, IsMadeForAnOption)
{
    expectFailure(runTool({"photos", "x", "--albm", "Trip"}),
                  "not expected: --albm Trip; see iosphoto --help; did you mean '--album'?\n", 2);
    EXPECT_THAT(runTool({"photos", "x", "--limt=3"}).error,
                EndsWith("; did you mean '--limit'?\n"));
    EXPECT_THAT(runTool({"info", "x", "-json"}).error, EndsWith("; did you mean '--json'?\n"));
    EXPECT_THAT(runTool({"--quite", "info", "x"}).error, EndsWith("; did you mean '--quiet'?\n"));
}

TEST(Suggestion, IsMadeForAnAlbumAsItIsShown)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG").in(library.album("Weekend")).set("ZFAVORITE", 1);
    const auto photos = [&](const std::string &album, const std::string &language) {
        return runOn(library, "photos", {"--album", album, "--lang", language});
    };
    expectFailure(photos("wekend", "en"),
                  "no album fits 'wekend'; 'iosphoto albums " + library.path() +
                      "' lists them; did you mean 'Weekend'?\n",
                  2);
    EXPECT_THAT(photos("favrites", "en").error, EndsWith("; did you mean 'Favorites'?\n"));
    EXPECT_THAT(photos("个人收蔵", "zh").error, EndsWith("；是否想输入“个人收藏”？\n"));
}

TEST(Suggestion, IsNotMadeForWhatIsLikeNothing)
{
    const std::string start = "did you mean";
    EXPECT_THAT(runTool({"sing"}).error, Not(HasSubstr(start)));
    EXPECT_THAT(runTool({"photos", "x", "--colourful-borders"}).error, Not(HasSubstr(start)));
    EXPECT_THAT(runTool({"photos", "x", "y"}).error, Not(HasSubstr(start)));
    const LibraryBuilder library(ios15);
    EXPECT_THAT(runOn(library, "photos", {"--album", "Zanzibar"}).error, Not(HasSubstr(start)));
}
