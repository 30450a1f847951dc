#include "support/case_name.h"
#include "support/expect_failure.h"
#include "support/listing_case.h"
#include "support/run_on.h"

using namespace iosphoto::test;

namespace {

/// Photos 1 to 7, each a day older than the one before; the first is of 2020-01-05 10:40 UTC.
class ManyKinds
{
public:
    ManyKinds()
    {
        const AlbumRow trip = library_.album("Trip");
        uuidOfTheFirst_ = library_.asset("1.JPG").set("ZFAVORITE", 1).in(trip).uuid();
        library_.asset("2.MOV").video().set("ZFAVORITE", 1);
        library_.asset("3.JPG").set("ZVIDEOCPDURATIONTIMESCALE", 600).in(trip);
        library_.asset("4.MOV").video().set("ZKINDSUBTYPE", 101);
        library_.asset("5.JPG").set("ZHIDDEN", 1);
        library_.asset("6.JPG").set("ZHASADJUSTMENTS", 1).set("ZORIGINALFILENAME", "before.jpg");
        library_.asset("7.JPG").trashedAt(readingTime - 10 * days);
    }

    const LibraryBuilder &library() const { return library_; }
    const std::string &uuidOfTheFirst() const { return uuidOfTheFirst_; }

private:
    std::string uuidOfTheFirst_;
    LibraryBuilder library_{ios15};
};

const ListingCase filters[] = {
    {{}, {"1.JPG", "2.MOV", "3.JPG", "4.MOV", "5.JPG", "6.JPG", "7.JPG"}},
    {{"--favorite"}, {"1.JPG", "2.MOV"}},
    {{"--hidden"}, {"5.JPG"}},
    {{"--edited"}, {"6.JPG"}},
    {{"--deleted"}, {"7.JPG"}},
    {{"--deleted", "--within", "10"}, {"7.JPG"}},
    {{"--album", "trip"}, {"1.JPG", "3.JPG"}},
    {{"--kind", "live"}, {"3.JPG"}},
    {{"--kind", "video"}, {"2.MOV", "4.MOV"}},
    {{"--kind", "slo-mo"}, {"4.MOV"}},
    {{"--kind", "photo"}, {"1.JPG", "3.JPG", "5.JPG", "6.JPG", "7.JPG"}},
    {{"--kind", "live,slo-mo"}, {"3.JPG", "4.MOV"}},
    {{"--kind", "live", "--kind", "edited"}, {"3.JPG", "6.JPG"}},
    {{"--kind", "LIVE"}, {"3.JPG"}},
    {{"--kind", "Videos"}, {"2.MOV", "4.MOV"}},
    {{"--kind", " live , Slo-Mos "}, {"3.JPG", "4.MOV"}},
    {{"--kind", "photo", "--favorite"}, {"1.JPG"}},
    {{"--album", "trip", "--kind", "live,video"}, {"3.JPG"}},
    {{"--since", "2020-01-04"}, {"1.JPG", "2.MOV"}},
    {{"--since", "2020-01-04 10:40"}, {"1.JPG", "2.MOV"}},
    {{"--since", "2020-01-04T10:40:01Z"}, {"1.JPG"}},
    {{"--until", "2019-12-31"}, {"6.JPG", "7.JPG"}},
    {{"--until", "2019-12-31T10:40:00Z"}, {"6.JPG", "7.JPG"}},
    {{"--until", "2019-12-31 10:39"}, {"7.JPG"}},
    {{"--since", "2020-01-02", "--until", "2020-01-03"}, {"3.JPG", "4.MOV"}},
    {{"--since", "2020"}, {"1.JPG", "2.MOV", "3.JPG", "4.MOV", "5.JPG"}},
    {{"--until", "2019"}, {"6.JPG", "7.JPG"}},
    {{"--until", "2019-12"}, {"6.JPG", "7.JPG"}},
    {{"--since", "2019-12", "--until", "2019-12"}, {"6.JPG", "7.JPG"}},
    {{"--until", "7d", "--since", "2020-01-05"}, {"1.JPG"}},
    {{"-n", "2"}, {"1.JPG", "2.MOV"}},
    {{"--name", "[12].*"}, {"1.JPG", "2.MOV"}},
    {{"--name", "?.mov"}, {"2.MOV", "4.MOV"}},
    {{"--name", "1.jpg", "--name", "4*"}, {"1.JPG", "4.MOV"}},
    {{"--name", "[!1-6].*"}, {"7.JPG"}},
    {{"--name", "BEFORE.*"}, {"6.JPG"}},
    {{"--uuid", "A0000000-0000-0000-0000-000000000002"}, {"2.MOV"}},
    {{"--uuid", "a0000000000000000000000000000003", "--uuid",
      "A0000000-0000-0000-0000-000000000001"},
     {"1.JPG", "3.JPG"}},
    {{"--album", "trip", "--album", "hidden"}, {"1.JPG", "3.JPG", "5.JPG"}},
    {{"--album", "trip", "--album", "Favorites"}, {"1.JPG", "2.MOV", "3.JPG"}},
    {{"--where", "fileName like '%.mov' or isHidden"}, {"2.MOV", "4.MOV", "5.JPG"}},
    {{"--where", "created >= '2020-01-04'"}, {"1.JPG", "2.MOV"}},
    {{"--where", "1", "--favorite"}, {"1.JPG", "2.MOV"}},
};

} // namespace

class ToolPhotoFilter : public testing::TestWithParam<ListingCase>
{
};

TEST_P(ToolPhotoFilter, ShowsWhatFitsAllOfIt)
{
    std::vector<std::string> arguments = {"--fields", "fileName"};
    arguments.insert(arguments.end(), GetParam().arguments.begin(), GetParam().arguments.end());
    EXPECT_EQ(runOn(ManyKinds().library(), "photos", arguments), fileNames(GetParam().names));
}

INSTANTIATE_TEST_SUITE_P(Filters, ToolPhotoFilter, testing::ValuesIn(filters), NameOfCase());

TEST(ToolPhotoFilters, TrashedEarlierThanWithinTheDaysDoesNotFit)
{
    EXPECT_EQ(
        runOn(ManyKinds().library(), "photos",
              {"--deleted", "--within", "9", "--fields", "fileName"}),
        (ToolRun{"fileName\n",
                 "iosphoto: none of the 7 photos fits; leave out an option to see more\n", 0}));
}

TEST(ToolPhotoFilters, MayFitNothing)
{
    const ManyKinds many;
    const std::vector<std::vector<std::string>> combined = {
        {"--since", "yesterday"},
        {"--name", "*.JP"},
        {"--where", "null"},
        {"--uuid", many.uuidOfTheFirst(), "--kind", "live"}};
    for (std::vector<std::string> filter : combined) {
        filter.insert(filter.end(), {"--fields", "fileName"});
        const ToolRun run = runOn(many.library(), "photos", filter);
        EXPECT_EQ(run.out, "fileName\n");
        EXPECT_EQ(run.error,
                  "iosphoto: none of the 7 photos fits; leave out an option to see more\n");
    }
}

TEST(ToolPhotoFilters, UuidsThatNoPhotoHasAndNamesOfNoFileAreWrongUsage)
{
    const ManyKinds many;
    const std::string there = many.uuidOfTheFirst();
    expectFailure(runOn(many.library(), "photos", {"--uuid", there, "--uuid", "B1-C2"}),
                  "no photo of the database has the uuid 'B1-C2'; 'iosphoto photos " +
                      many.library().path() +
                      " --frames --with-left-out --fields uuid,path' lists them\n",
                  2);
    expectFailure(runOn(many.library(), "photos", {"--name", ""}), "--name: names no file", 2);
    expectFailure(runOn(many.library(), "photos", {"--uuid="}), "--uuid requires a value", 2);
    expectFailure(runOn(many.library(), "photos", {"--uuid", "--"}),
                  "--uuid: '--' should look like 5A3D1F00-0000-4000-8000-000000000001", 2);
}

TEST(ToolPhotoFilters, PhotosWithoutADateThatATimeLeavesOutAreCounted)
{
    LibraryBuilder library(ios15);
    library.asset("DATED.JPG");
    for (const char *name : {"A.JPG", "B.JPG"})
        library.asset(name).set("ZDATECREATED", nullptr).set("ZFAVORITE", 1);
    library.asset("C.JPG").set("ZDATECREATED", nullptr);
    const auto error = [&](std::vector<std::string> options) {
        options.insert(options.end(), {"--quiet", "--fields", "fileName"});
        return runOn(library, "photos", options).error;
    };
    const std::string three = "iosphoto: 3 photos are not shown, as they have no time of creation, "
                              "by which --since and --until choose\n";
    EXPECT_EQ(error({"--since", "2019"}), three);
    EXPECT_EQ(error({"--until", "now", "--json"}), three);
    EXPECT_EQ(error({"--until", "now", "--limit", "1"}), three);
    EXPECT_EQ(error({"--since", "2019", "--name", "C*"}),
              "iosphoto: 1 photo is not shown, as it has no time of creation, by which --since and "
              "--until choose\n"
              "iosphoto: none of the 4 photos fits; leave out an option to see more\n");
    EXPECT_EQ(error({"--since", "2019", "--name", "D*"}), "");
    EXPECT_EQ(error({"--favorite"}), "");
}

TEST(ToolPhotoFilters, ListsOfAnOptionEndWhereTheSourceBegins)
{
    const ManyKinds many;
    EXPECT_EQ(
        runTool({"photos", "--ios", "15.0", "--product", "iPhone14,2", "--as-of", "2020-01-10",
                 "--kind", "live", "--fields", "fileName", many.library().path()}),
        fileNames({"3.JPG"}));
}

TEST(ToolPhotoFilters, MistakesAreWrongUsage)
{
    const LibraryBuilder library(ios15);
    const auto photos = [&](const std::vector<std::string> &arguments) {
        return runOn(library, "photos", arguments);
    };
    expectFailure(
        photos({"--kind", "live,sharp"}),
        "--kind: there is no kind 'sharp'; there are photo, video, time-lapse, slo-mo, "
        "screen-recording, panorama, burst, screenshot, live, selfie, portrait, animated, "
        "raw, prores, favorite, edited, hidden, deleted\n",
        2);
    expectFailure(photos({"--kind", "screnshots"}),
                  "--kind: there is no kind 'screnshots'; there are photo, video, time-lapse, "
                  "slo-mo, screen-recording, panorama, burst, screenshot, live, selfie, portrait, "
                  "animated, raw, prores, favorite, edited, hidden, deleted; did you mean "
                  "'screenshot'?\n",
                  2);
    expectFailure(
        photos({"--sort", "colour"}),
        "--sort: there is no order 'colour'; there are date, name, size, duration, added, "
        "modified, deleted\n",
        2);
    expectFailure(
        photos({"--fields", "uuid,colour"}),
        "--fields: there is no field 'colour'; there are uuid, assetId, mediaKind, path, ", 2);
    expectFailure(photos({"--sort", "nmae"}),
                  "--sort: there is no order 'nmae'; there are date, name, size, duration, added, "
                  "modified, deleted; did you mean 'name'?\n",
                  2);
    expectFailure(photos({"--since", "once"}),
                  "--since: 'once' is no time; write it like 2024, 2024-05, 2024-05-01, "
                  "'2024-05-01 12:30', 2024-05-01T12:30:00Z, yesterday, 7d or now\n",
                  2);
    expectFailure(photos({"--until", "2020-13-01"}), "--until: '2020-13-01' is no time", 2);
    expectFailure(photos({"--since", "2020-01-02", "--until", "2020-01-01"}),
                  "--since (2020-01-02 00:00 UTC) is later than --until (2020-01-01 23:59 UTC), so "
                  "no photo fits both; exchange them\n",
                  2);
    expectFailure(photos({"--within", "3"}), "--within requires --deleted", 2);
    expectFailure(photos({"--deleted", "--within", "-1"}), "--within: '-1' should look like 7", 2);
    expectFailure(photos({"--deleted", "--within", "99999999999"}),
                  "--within = 99999999999: the number is too large", 2);
    expectFailure(photos({"--limit", "0"}), "--limit: '0' should look like 20", 2);
}
