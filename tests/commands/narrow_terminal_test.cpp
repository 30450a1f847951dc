#include "support/case_name.h"
#include "support/library_builder.h"
#include "support/run_tool.h"
#include "support/sample_thumb_cache.h"
#include "terminal/display_width.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

using namespace iosphoto::test;
using iosphoto::tool::displayWidth;
using testing::HasSubstr;
using testing::Not;

namespace {

struct ListingOnTerminal
{
    std::string command;
    std::vector<std::string> options;
    std::string shown; ///< of its text, whatever the width

    std::string name() const { return command + (options.empty() ? "" : options.front()); }
};

std::ostream &operator<<(std::ostream &stream, const ListingOnTerminal &listing)
{
    return stream << listing.name();
}

const ListingOnTerminal listings[] = {
    {"albums", {}, "Camera Roll"},
    {"photos", {}, "IMG_0003.JPG"},
    {"photos", {"--deleted"}, "IMG_0004.JPG"},
    {"info", {}, "IMG_0003.JPG"},
    {"diff", {}, "IMG_0003.JPG"},
    {"thumb", {}, "80x60"},
};

/// A library with names that are long and wide.
void fill(LibraryBuilder &library)
{
    const AlbumRow trip =
        library.album("A journey around the whole world 环游世界 👨‍👩‍👧‍👦");
    library.asset("IMG_0001_with_a_name_that_goes_on_and_on.JPG").in(trip).set("ZFAVORITE", 1);
    library.asset("照片照片照片照片照片照片照片照片照片照片.JPG").in(trip);
}

} // namespace

class NarrowTerminal : public testing::TestWithParam<std::tuple<ListingOnTerminal, std::size_t>>
{
protected:
    NarrowTerminal()
    {
        fill(before_);
        fill(after_);
        after_.execute("pragma journal_mode = wal; pragma wal_autocheckpoint = 0");
        after_.asset("IMG_0003.JPG");
        after_.asset("IMG_0004.JPG").trashedAt(600'000'000);
        writeFile(cache_, sampleThumbCache(120).bytes());
    }

    std::vector<std::string> sources() const
    {
        const std::string &command = std::get<0>(GetParam()).command;
        if (command == "thumb")
            return {cache_};
        if (command == "diff")
            return {before_.path(), after_.path()};
        return {after_.path(), "--as-of", "2020-01-10"};
    }

    LibraryBuilder before_{ios15};
    LibraryBuilder after_{ios15};
    TemporaryFolder folder_;
    std::string cache_ = (folder_ / "120x120.ithmb").string();
};

TEST_P(NarrowTerminal, HasNoLineThatIsWiderAndWholeNamesOfFiles)
{
    const auto &[listing, columns] = GetParam();
    std::vector<std::string> arguments = sources();
    arguments.insert(arguments.begin(), listing.command);
    arguments.insert(arguments.end(), listing.options.begin(), listing.options.end());
    arguments.insert(arguments.end(), {"--color", "never"});
    const ToolRun run = runToolOnTerminal(arguments, static_cast<int>(columns));

    EXPECT_EQ(run.status, listing.command == "diff" ? 1 : 0) << run;
    std::istringstream lines(run.out);
    int count = 0;
    for (std::string line; std::getline(lines, line); ++count)
        EXPECT_LE(displayWidth(line), columns) << line;
    EXPECT_GE(count, 2) << run;
    EXPECT_THAT(run.out, HasSubstr(listing.shown));
}

INSTANTIATE_TEST_SUITE_P(Listings, NarrowTerminal,
                         testing::Combine(testing::ValuesIn(listings),
                                          testing::Values(40U, 60U, 80U, 100U)),
                         [](const auto &tested) {
                             return caseName(std::get<0>(tested.param).name() + " " +
                                             std::to_string(std::get<1>(tested.param)));
                         });

namespace {

/// The most that columns of usual libraries take.
void fillWithWideCells(LibraryBuilder &library)
{
    const AlbumRow trip = library.album("A journey around the whole world");
    const auto add = [&](const std::string &name) {
        return library.asset(name)
            .in(trip)
            .set("ZFAVORITE", 1)
            .set("ZHASADJUSTMENTS", 1)
            .set("ZVIDEOCPDURATIONTIMESCALE", 600)
            .set("ZWIDTH", 12000)
            .set("ZHEIGHT", 9000)
            .set("ZORIGINALFILESIZE", 1'023'900'000);
    };
    for (int i = 0; i < 12; ++i)
        add("IMG_" + std::to_string(1000 + i) + ".HEIC");
    add("IMG_2000.HEIC").trashedAt(600'000'000);
    add("IMG_3000.HEIC").trashedAt(0); // left out
}

std::string shownAt80(const LibraryBuilder &library, const std::vector<std::string> &command,
                      const std::string &language = "en", const std::string &zone = "UTC")
{
    std::vector<std::string> arguments = {library.path(), "--as-of", "2020-01-10", "--lang",
                                          language,       "--color", "never",      "--quiet"};
    arguments.insert(arguments.begin(), command.begin(), command.end());
    return runToolOnTerminal(arguments, 80, {{"TZ", zone}}).out;
}

} // namespace

TEST(TerminalOf80Columns, ShowsAlbumsAndPhotosAsTables)
{
    LibraryBuilder library(ios15);
    fillWithWideCells(library);
    const std::vector<std::vector<std::string>> commands = {{"albums"},
                                                            {"photos"},
                                                            {"photos", "--deleted"},
                                                            {"photos", "--left-out"},
                                                            {"photos", "--with-left-out"}};
    for (const std::vector<std::string> &command : commands)
        for (const char *zone : {"UTC", "Asia/Kathmandu"})
            for (const char *language : {"en", "zh"}) {
                const std::string out = shownAt80(library, command, language, zone);
                const std::string firstLine = out.substr(0, out.find('\n'));
                EXPECT_THAT(firstLine, Not(HasSubstr("2020"))) << "a block: " << out;
                EXPECT_THAT(out, HasSubstr(language == std::string("en") ? "too narrow: "
                                                                         : "未显示的列："));
            }
}

TEST(TerminalOf80Columns, ShortensTheListOfAlbums)
{
    LibraryBuilder library(ios15);
    fillWithWideCells(library);
    const std::string out = shownAt80(library, {"photos"});
    EXPECT_THAT(out, HasSubstr("Camera Roll, +3"));
    EXPECT_THAT(out, HasSubstr("too narrow: PIXELS, SIZE"));
}

TEST(TerminalOf80Columns, KeepsTheReasonsOfWhatIsLeftOutWhole)
{
    LibraryBuilder library(ios15);
    fillWithWideCells(library);
    const char *const longest = "hidden or deleted frame of a burst";
    library.asset("IMG_WITH_A_RATHER_LONG_NAME_4000.HEIC")
        .set("ZAVALANCHEUUID", "BURST")
        .set("ZAVALANCHEPICKTYPE", 2)
        .set("ZHIDDEN", 1);
    for (const char *option : {"--left-out", "--with-left-out"}) {
        const std::string out = shownAt80(library, {"photos", option});
        EXPECT_THAT(out, HasSubstr(longest));
        EXPECT_THAT(out, HasSubstr("in the trash for 30 days"));
        EXPECT_THAT(out, HasSubstr("LEFT OUT"));
    }
}

TEST(TerminalOf80Columns, LeavesOutNoFieldThatWasChosen)
{
    LibraryBuilder library(ios15);
    fillWithWideCells(library);
    const std::string out =
        shownAt80(library, {"photos", "--fields", "created,path,pixels,fileSize,what,uuid"});
    for (const char *heading : {"TAKEN", "FILE", "PIXELS", "SIZE", "WHAT", "uuid"})
        EXPECT_THAT(out, HasSubstr(heading));
}
