// What may be left out of a command line, or be written in short.
#include "support/expect_failure.h"
#include "support/run_on.h"

using namespace iosphoto::test;
using testing::HasSubstr;
using testing::StartsWith;

namespace fs = std::filesystem;

TEST(ShortForm, OfNothingIsTheHelp)
{
    const ToolRun run = runTool({});
    EXPECT_THAT(run.out, StartsWith("Reads the photo libraries of iOS devices."));
    EXPECT_THAT(run.out, HasSubstr("'iosphoto SOURCE' is 'iosphoto info SOURCE'"));
    EXPECT_EQ(run, runTool({"--help"}));
    EXPECT_EQ(run.status, 0);
}

TEST(ShortForm, HelpIsThatOfTheProgramOrACommand)
{
    EXPECT_EQ(runTool({"help"}), runTool({"--help"}));
    EXPECT_EQ(runTool({"help", "help"}), runTool({"--help"}));
    EXPECT_EQ(runTool({"help", "photos"}), runTool({"photos", "--help"}));
    EXPECT_EQ(runTool({"--lang", "zh", "help", "photos"}),
              runTool({"photos", "--help", "--lang", "zh"}));
    EXPECT_EQ(runTool({"help", "--lang", "zh"}), runTool({"--help", "--lang", "zh"}));
    expectFailure(runTool({"help", "sing"}), "'sing' is neither a command nor a file", 2);
    expectFailure(runTool({"help", "/"}), "'/' is not a command; see iosphoto --help\n", 2);
}

TEST(ShortForm, VersionIsACapitalLetter)
{
    EXPECT_EQ(runTool({"-V"}), runTool({"--version"}));
    EXPECT_EQ(runTool({"photos", "-V"}), runTool({"--version"}));
}

TEST(ShortForm, SourceAloneIsInfo)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG");
    const ToolRun info = runTool({"info", library.path()});
    ASSERT_EQ(info.status, 0);
    EXPECT_EQ(runTool({library.path()}), info);
    EXPECT_EQ(runTool({"--color", "never", library.path()}), info);
    EXPECT_EQ(runTool({library.path(), "--json", "--quiet"}),
              runTool({"info", library.path(), "--json", "--quiet"}));
    EXPECT_EQ(runTool({library.path(), "--lang=zh"}),
              runTool({"info", library.path(), "--lang=zh"}));
}

TEST(ShortForm, SourceAloneMayBeWrong)
{
    expectFailure(runTool({"/nowhere/Photos.sqlite"}), "cannot read '/nowhere/Photos.sqlite': ", 3);
    expectFailure(runTool({"Photos.sqlit"}), "cannot read 'Photos.sqlit': ", 3);
    EXPECT_EQ(runTool({"/nowhere", "x"}), runTool({"info", "/nowhere", "x"}));
}
