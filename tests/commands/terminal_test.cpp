#include "support/case_name.h"
#include "support/library_builder.h"
#include "support/run_tool.h"
#include "support/sample_thumb_cache.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace iosphoto::test;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

/// A library with a name that is long.
void fill(LibraryBuilder &library)
{
    library.asset("IMG_0001.JPG").in(library.album("A journey around the whole world"));
}

} // namespace

TEST(ToolOnTerminal, ObeysColumns)
{
    LibraryBuilder library(ios15);
    fill(library);
    const std::vector<std::string> arguments = {"albums", library.path()};
    const ToolRun wide = runToolOnTerminal(arguments, 200);
    EXPECT_THAT(wide.out, Not(HasSubstr("…")));
    EXPECT_THAT(runToolOnTerminal(arguments, 200, {{"COLUMNS", "80"}}).out, HasSubstr("…"));
    EXPECT_EQ(runToolOnTerminal(arguments, 200, {{"COLUMNS", "x"}}), wide);
}

TEST(ToolOnTerminal, IsNotToldByColumnsAlone)
{
    LibraryBuilder library(ios15);
    fill(library);
    const std::vector<std::string> arguments = {"albums", library.path()};
    EXPECT_EQ(runTool(arguments, {{"COLUMNS", "40"}}), runTool(arguments));
}

TEST(ToolOnTerminal, EscapesControlCharactersInCsvThatStaysExactElsewhere)
{
    LibraryBuilder library(ios15);
    library.album("a\x1b[2J\n\u202Eb");
    const std::vector<std::string> arguments = {
        "albums", library.path(), "--csv", "--fields", "kind,name", "--quiet", "--color=never"};
    EXPECT_THAT(runToolOnTerminal(arguments, 80).out, HasSubstr("user,a\\u001b[2J\\n\\u202eb\r"));
    const std::string exact = "user,\"a\x1b[2J\n\u202Eb\"\r\n";
    EXPECT_THAT(runTool(arguments).out, HasSubstr(exact));
    writeFile(library.folder() / "out.csv", "");
    runToolInto((library.folder() / "out.csv").string(), arguments);
    EXPECT_THAT(readFile(library.folder() / "out.csv"), HasSubstr(exact));
}

namespace {

struct ColorCase
{
    std::string what;
    bool isOnTerminal;
    Environment environment;
    std::string option; ///< the value of --color; empty for none
    bool isColored;

    std::string name() const { return what; }
};

const ColorCase colorCases[] = {
    {"terminal", true, {}, "", true},
    {"terminal auto", true, {}, "auto", true},
    {"terminal always", true, {}, "always", true},
    {"terminal never", true, {}, "never", false},
    {"terminal without", true, {{"NO_COLOR", "1"}}, "", false},
    {"terminal without auto", true, {{"NO_COLOR", "0"}}, "auto", false},
    {"terminal without always", true, {{"NO_COLOR", "1"}}, "always", true},
    {"terminal without nothing", true, {{"NO_COLOR", ""}}, "", true},
    {"dumb terminal", true, {{"TERM", "dumb"}}, "", false},
    {"dumb terminal always", true, {{"TERM", "dumb"}}, "always", true},
    {"file", false, {}, "", false},
    {"file auto", false, {}, "auto", false},
    {"file always", false, {}, "always", true},
    {"file never", false, {}, "never", false},
};

} // namespace

class ToolColor : public testing::TestWithParam<ColorCase>
{
protected:
    static ToolRun run(std::vector<std::string> arguments)
    {
        const ColorCase &param = GetParam();
        if (!param.option.empty())
            arguments.insert(arguments.end(), {"--color", param.option});
        return param.isOnTerminal ? runToolOnTerminal(arguments, 80, param.environment)
                                  : runTool(arguments, param.environment);
    }
};

TEST_P(ToolColor, IsUsedForHeadingsAndFailures)
{
    const LibraryBuilder library(ios15);
    const ToolRun table = run({"albums", library.path(), "--quiet"});
    const ToolRun failure = run({"albums", "/nowhere"});
    if (GetParam().isColored) {
        EXPECT_THAT(table.out, StartsWith("\x1b[1m#  KIND"));
        EXPECT_THAT(failure.error, StartsWith("\x1b[31miosphoto:\x1b[0m cannot read"));
    } else {
        EXPECT_THAT(table.out, StartsWith("#  KIND"));
        EXPECT_THAT(failure.error, StartsWith("iosphoto: cannot read"));
    }
    EXPECT_EQ(table.error, "");
}

TEST_P(ToolColor, TellsWhatIsMissingFromRemarks)
{
    const LibraryBuilder library(ios15);
    const TemporaryFolder folder;
    const std::string cache = (folder / "cache").string();
    writeFile(cache, sampleThumbCache(120).bytes().substr(0, 100000));
    const std::string name = GetParam().isColored ? "\x1b[33miosphoto:\x1b[0m" : "iosphoto:";
    EXPECT_THAT(run({"thumb", cache}).error, StartsWith(name + " '" + cache + "' has more than"));
    EXPECT_THAT(run({"albums", library.path()}).error, StartsWith("iosphoto: reading as iOS"));
}

INSTANTIATE_TEST_SUITE_P(Cases, ToolColor, testing::ValuesIn(colorCases), NameOfCase());
