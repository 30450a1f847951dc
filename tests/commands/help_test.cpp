#include "support/case_name.h"
#include "support/run_on.h"
#include "terminal/display_width.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <sstream>

using namespace iosphoto::test;
using iosphoto::tool::displayWidth;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

std::vector<std::string> wordsOf(const std::string &text)
{
    std::istringstream stream(text);
    std::vector<std::string> words;
    for (std::string word; stream >> word;)
        words.push_back(word);
    return words;
}

std::vector<std::string> linesOf(const std::string &text)
{
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

/// An example of a command line, which is shown whole.
bool isExample(const std::string &line)
{
    const char *const programs[] = {"iosphoto", "sqlite3", "mkdir"};
    return std::any_of(std::begin(programs), std::end(programs), [&](const std::string &program) {
        return line.rfind("  " + program + " ", 0) == 0;
    });
}

/// What stands in a text between two others, as one line.
std::string between(const std::string &before, const std::string &after, const std::string &text)
{
    const std::size_t begin = text.find(before) + before.size();
    std::string part = text.substr(begin, text.find(after, begin) - begin);
    std::replace(part.begin(), part.end(), '\n', ' ');
    return part;
}

} // namespace

class HelpOfCommand : public testing::TestWithParam<std::string>
{
};

TEST_P(HelpOfCommand, HasNoWordsOfTheParser)
{
    const std::string help = runTool({GetParam(), "--help"}).out;
    EXPECT_THAT(help, HasSubstr("--evidence FILE "));
    for (const char *word : {"TEXT", "INT", "FLOAT", "REQUIRED", "Needs:", "Excludes:", " \n"})
        EXPECT_THAT(help, Not(HasSubstr(word)));
}

TEST_P(HelpOfCommand, EndsWithItsExitCodes)
{
    const std::vector<std::string> lines = linesOf(runTool({GetParam(), "--help"}).out);
    ASSERT_GT(lines.size(), 1U);
    EXPECT_THAT(lines.back(), StartsWith("Exit: 0 "));
    EXPECT_THAT(lines.back(), EndsWith("; see the README"));
    EXPECT_EQ(lines[lines.size() - 2], "");
}

TEST_P(HelpOfCommand, BreaksNoWordOnATerminal)
{
    const std::vector<std::string> words = wordsOf(runTool({GetParam(), "--help"}).out);
    for (const std::size_t columns : {40U, 60U, 80U}) {
        const ToolRun run = runToolOnTerminal({GetParam(), "--help"}, static_cast<int>(columns));
        EXPECT_EQ(wordsOf(run.out), words) << columns;
        for (const std::string &line : linesOf(run.out))
            EXPECT_TRUE(isExample(line) || displayWidth(line) <= columns) << line;
    }
}

INSTANTIATE_TEST_SUITE_P(Commands, HelpOfCommand,
                         testing::Values("info", "albums", "photos", "diff", "statements", "thumb"),
                         [](const auto &tested) { return caseName(tested.param); });

TEST(Help, NamesValuesAsAPersonWould)
{
    const std::string help = runTool({"photos", "--help"}).out;
    for (const char *option :
         {"--as-of TIME", "--since TIME", "--until TIME", "--ios VERSION", "--product MODEL",
          "--album NAME", "--kind KINDS", "--fields FIELDS", "-n,--limit NUMBER", "--sqlite FILE"})
        EXPECT_THAT(help, HasSubstr(std::string("\n  ") + option + " "));
    EXPECT_THAT(runTool({"thumb", "--help"}).out, HasSubstr("\n  -o,--output FILE|FOLDER "));
}

TEST(Help, NamesTheZoneOfTimes)
{
    for (const char *command : {"photos", "albums", "info"}) {
        const ToolRun run = runTool({command, "--help"}, {{"TZ", "Asia/Shanghai"}});
        EXPECT_THAT(between("TIMES: ", "\n\n", run.out),
                    HasSubstr("Times are local, here of the zone Asia/Shanghai, unless Z "));
    }
}

TEST(Help, NamesTheZoneThatTimesAreOfWhereTheNameOfTheZoneIsNone)
{
    EXPECT_THAT(runTool({"photos", "--help"}, {{"TZ", "Nonsense/Zone"}}).out,
                HasSubstr("here of the zone UTC, unless Z "));
}

TEST(Help, HasArgumentsThatMayBeLeftOutInBrackets)
{
    const std::string optional = runTool({"statements", "--help"}).out;
    EXPECT_THAT(optional, HasSubstr("Usage: iosphoto statements [OPTIONS] [SOURCE]\n"));
    EXPECT_THAT(optional, HasSubstr("\n  [SOURCE] "));
    EXPECT_THAT(runTool({"info", "--help"}).out, HasSubstr("\n  SOURCE "));
}

TEST(Help, ListsTheKindsThatMayBeAskedFor)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG");
    const std::string kinds =
        between("any of them fits. There are ", "\n", runTool({"photos", "--help"}).out);
    EXPECT_THAT(kinds, StartsWith("photo, video, "));
    EXPECT_EQ(runOn(library, "photos", {"--kind", kinds, "--fields", "fileName"}),
              (ToolRun{"fileName\nIMG_0001.JPG\n", "", 0}));
}

TEST(Help, ListsTheFieldsThatMayBeChosen)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG");
    for (const std::string &command : {std::string("albums"), std::string("photos")}) {
        const std::string fields = between("\nFIELDS: ", "\n\n", runTool({command, "--help"}).out);
        const auto chosen = nlohmann::json::parse(
            runOn(library, command, {"--json", "--fields", fields}).out)[command][0];
        const auto usual =
            nlohmann::json::parse(runOn(library, command, {"--json"}).out)[command][0];
        EXPECT_GT(chosen.size(), usual.size());
        for (const auto &[key, value] : usual.items())
            EXPECT_EQ(chosen.at(key), value) << key;
    }
}
