#include "support/case_name.h"
#include "support/expect_failure.h"
#include "support/library_builder.h"
#include "support/sample_thumb_cache.h"

#include <sstream>

using namespace iosphoto::test;
using testing::AllOf;
using testing::HasSubstr;
using testing::IsSupersetOf;
using testing::StartsWith;

namespace {

struct CommandCase
{
    std::string command;
    std::vector<std::string> options; ///< of its own

    std::string name() const { return command; }
};

const CommandCase commands[] = {
    {"albums", {"--ios", "--product", "--as-of", "--json"}},
    {"photos", {"--ios", "--product", "--as-of", "--album", "--json"}},
    {"diff", {"--ios", "--product", "--json", "--jsonl", "--csv"}},
    {"info", {"--ios", "--product", "--as-of", "--json"}},
    {"statements", {"--ios", "--product", "--json"}},
    {"thumb", {"-o,--output", "--index", "--all", "--png", "--sheet", "--json"}},
};

const std::vector<std::string> generalOptions = {"--lang", "--color", "-q,--quiet", "-V,--version",
                                                 "-h,--help"};

/// The options that a help explains: the first words of lines.
std::vector<std::string> optionsIn(const std::string &help)
{
    std::istringstream lines(help);
    std::vector<std::string> options;
    for (std::string line; std::getline(lines, line);) {
        std::string word;
        std::istringstream(line) >> word;
        if (word.rfind('-', 0) == 0)
            options.push_back(word);
    }
    return options;
}

} // namespace

class ToolHelp : public testing::TestWithParam<CommandCase>
{
};

TEST_P(ToolHelp, NamesTheOptionsInBothLanguages)
{
    std::vector<std::string> options = GetParam().options;
    options.insert(options.end(), generalOptions.begin(), generalOptions.end());
    const ToolRun english = runTool({GetParam().command, "--help"});
    const ToolRun chinese = runTool({GetParam().command, "--help", "--lang", "zh"});
    for (const ToolRun &run : {english, chinese}) {
        EXPECT_THAT(optionsIn(run.out), IsSupersetOf(options));
        EXPECT_EQ(run.error, "");
        EXPECT_EQ(run.status, 0);
    }
    EXPECT_THAT(english.out, AllOf(HasSubstr("Usage: iosphoto"), HasSubstr("\nGeneral:\n"),
                                   HasSubstr("print this help")));
    EXPECT_THAT(chinese.out, AllOf(HasSubstr("用法: iosphoto"), HasSubstr("\n通用选项:\n"),
                                   HasSubstr("显示此帮助")));
}

TEST_P(ToolHelp, IsNotNeededForTheVersion)
{
    const ToolRun run = runTool({GetParam().command, "--version"});
    EXPECT_THAT(run.out, StartsWith("iosphoto "));
    EXPECT_EQ(run, runTool({"--version"}));
}

INSTANTIATE_TEST_SUITE_P(Commands, ToolHelp, testing::ValuesIn(commands), NameOfCase());

TEST(ToolGeneralHelp, NamesTheCommands)
{
    for (const char *language : {"en", "zh"}) {
        const ToolRun run = runTool({"--help", "--lang", language});
        for (const CommandCase &each : commands)
            EXPECT_THAT(run.out, HasSubstr("\n  " + each.command + " "));
        EXPECT_EQ(run.status, 0);
    }
}

class ToolLanguage : public testing::Test
{
protected:
    ToolLanguage() { writeFile(cache_, sampleThumbCache(120).bytes()); }

    TemporaryFolder folder_;
    std::string cache_ = (folder_ / "120x120.ithmb").string();
    const std::string chineseTable_ = "格式 120，共 6 条记录，每条 28,828 字节，其中 3 条有缩略图\n"
                                      "\n"
                                      "序号   像素  BMP 字节数\n"
                                      "   0  80x60       9,666\n"
                                      "   1  60x80       9,666\n"
                                      "   3  77x77      12,078\n";
};

TEST_F(ToolLanguage, OfATable)
{
    EXPECT_EQ(runTool({"thumb", cache_, "--lang", "zh"}), (ToolRun{chineseTable_, "", 0}));
    EXPECT_EQ(runTool({"--lang=zh", "thumb", cache_}), (ToolRun{chineseTable_, "", 0}));
}

TEST_F(ToolLanguage, IsThatOfTheLocaleUnlessItIsChosen)
{
    const Environment chinese = {{"LC_ALL", "zh_CN.UTF-8"}};
    EXPECT_EQ(runTool({"thumb", cache_}, chinese), (ToolRun{chineseTable_, "", 0}));
    EXPECT_EQ(runTool({"thumb", cache_, "--lang", "en"}, chinese), runTool({"thumb", cache_}));
}

TEST_F(ToolLanguage, OfAFailure)
{
    expectFailure(runTool({"albums", "/nowhere", "--lang", "zh"}),
                  "无法读取“/nowhere”：文件或文件夹不存在；请检查路径\n", 3);
    expectFailure(runTool({"albums", "--lang", "zh"}), "缺少 SOURCE；请参阅 iosphoto --help\n", 2);
}

TEST_F(ToolLanguage, OfAKindOfAlbums)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG").set("ZFAVORITE", 1);
    const ToolRun english = runTool({"photos", library.path(), "--album", "favorites", "-q"});
    const ToolRun chinese =
        runTool({"photos", library.path(), "--album", "个人收藏", "-q", "--lang", "zh"});
    EXPECT_THAT(english.out, HasSubstr("Camera Roll, Favorites\n"));
    EXPECT_THAT(chinese.out, HasSubstr("相机胶卷、个人收藏\n"));
}

TEST(ToolGeneralOptions, TakeNoOtherValues)
{
    expectFailure(runTool({"albums", "x", "--lang", "de"}),
                  "--lang: 'de' is none of en, zh; see iosphoto --help\n", 2);
    expectFailure(runTool({"albums", "x", "--color=blue"}),
                  "--color: 'blue' is none of auto, always, never; see iosphoto --help\n", 2);
    expectFailure(runTool({"albums", "x", "--lang"}),
                  "--lang requires a value; see iosphoto --help\n", 2);
}

TEST(ToolGeneralOptions, QuietLeavesOutRemarksOnly)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG");
    const ToolRun loud = runTool({"albums", library.path()});
    EXPECT_THAT(loud.error, StartsWith("iosphoto: reading as iOS "));
    for (const char *quiet : {"-q", "--quiet"})
        EXPECT_EQ(runTool({"albums", library.path(), quiet}), (ToolRun{loud.out, "", 0}));
    expectFailure(runTool({"albums", "/nowhere", "-q"}), "cannot read '/nowhere': ", 3);
}

TEST(ToolGeneralOptions, QuietKeepsWhatIsMissing)
{
    const TemporaryFolder folder;
    const std::string cache = (folder / "cache").string();
    writeFile(cache, sampleThumbCache(120).bytes().substr(0, 100000));
    const ToolRun run = runTool({"thumb", cache, "--quiet"});
    EXPECT_THAT(run.error, HasSubstr("has more than is shown here"));
    EXPECT_EQ(run.status, 1);
}

TEST(ToolGeneralOptions, QuietKeepsWhatIsLeftOutOfTheTrash)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG").trashedAt(0);
    const ToolRun run = runTool({"photos", library.path(), "--as-of", "2020-01-10", "--quiet"});
    EXPECT_EQ(run.error,
              "iosphoto: left out: 1 in the trash for 30 days; iosphoto photos --left-out lists "
              "them\n");
}

TEST(ToolGeneralOptions, QuietKeepsThatAScriptIsNotFilledIn)
{
    const ToolRun run = runTool({"statements", "--ios", "99", "--json", "--quiet"});
    EXPECT_THAT(run.error, HasSubstr("not all entity numbers of iOS 99 are known"));
}

struct UsageCase
{
    std::string what;
    std::vector<std::string> arguments;
    std::string english;
    std::string chinese;

    std::string name() const { return what; }
};

class ToolWrongUsage : public testing::TestWithParam<UsageCase>
{
};

TEST_P(ToolWrongUsage, IsOneLineInBothLanguages)
{
    const UsageCase &param = GetParam();
    expectFailure(runTool(param.arguments), param.english + "; see iosphoto --help\n", 2);
    std::vector<std::string> inChinese = {"--lang", "zh"};
    inChinese.insert(inChinese.end(), param.arguments.begin(), param.arguments.end());
    expectFailure(runTool(inChinese), param.chinese + "；请参阅 iosphoto --help\n", 2);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, ToolWrongUsage,
    testing::Values(
        UsageCase{"no command", {"-q"}, "a command is required", "缺少命令"},
        UsageCase{"wrong command",
                  {"sing", "x"},
                  "'sing' is neither a command nor a file that is there",
                  "“sing”既不是命令，也不是现有的文件"},
        UsageCase{"option for a command", {"--loud"}, "not expected: --loud", "多余的参数：--loud"},
        UsageCase{"no source", {"albums"}, "SOURCE is required", "缺少 SOURCE"},
        UsageCase{"one too many", {"albums", "x", "y"}, "not expected: y", "多余的参数：y"},
        UsageCase{"unknown options",
                  {"albums", "x", "--a", "--b"},
                  "not expected: --a --b",
                  "多余的参数：--a --b"},
        UsageCase{"no value", {"albums", "x", "--ios"}, "--ios requires a value", "--ios 缺少值"},
        UsageCase{"twice",
                  {"albums", "x", "--ios", "1", "--ios", "2"},
                  "--ios is given more than once",
                  "--ios 重复出现"},
        UsageCase{"twice before the command",
                  {"--color", "never", "--color", "auto", "albums", "x"},
                  "--color is given more than once",
                  "--color 重复出现"},
        UsageCase{"no value behind an equals sign",
                  {"albums", "x", "--ios="},
                  "--ios requires a value",
                  "--ios 缺少值"},
        UsageCase{"no value of a short option",
                  {"thumb", "x", "-qo"},
                  "--output requires a value",
                  "--output 缺少值"},
        UsageCase{"no value behind others",
                  {"photos", "x", "--deleted", "--album", "y", "--kind"},
                  "--kind requires a value",
                  "--kind 缺少值"},
        UsageCase{"list of no values",
                  {"photos", "x", "--kind", ",,"},
                  "--kind requires a value",
                  "--kind 缺少值"},
        UsageCase{"flag with a value",
                  {"photos", "x", "--reverse", "--json=x"},
                  "--json takes no value",
                  "--json 不接受值"},
        UsageCase{"general flag with a value",
                  {"albums", "x", "--quiet=x"},
                  "--quiet takes no value",
                  "--quiet 不接受值"},
        UsageCase{"number too large",
                  {"photos", "x", "--deleted", "--within", "2147483648"},
                  "--within = 2147483648: the number is too large",
                  "--within = 2147483648：数字过大"},
        UsageCase{"limit too large",
                  {"photos", "x", "--limit=99999999999999999999"},
                  "--limit = 99999999999999999999: the number is too large",
                  "--limit = 99999999999999999999：数字过大"},
        UsageCase{"value of another kind",
                  {"photos", "x", "--kind", "live", "--product", "iPhone14,2", "--ios", "new"},
                  "--ios: 'new' should look like 17.4",
                  "--ios：“new”的格式应类似 17.4"},
        UsageCase{"excluded",
                  {"photos", "x", "--csv", "--jsonl"},
                  "--jsonl excludes --csv",
                  "--jsonl 不能与 --csv 同时使用"},
        UsageCase{"excluded by two",
                  {"photos", "x", "--sqlite", "y", "--csv", "--json"},
                  "--json excludes --csv",
                  "--json 不能与 --csv 同时使用"},
        UsageCase{"partner missing",
                  {"thumb", "x", "--index", "1"},
                  "--index requires --output",
                  "--index 需要与 --output 一起使用"},
        UsageCase{"no file", {"thumb", ""}, "CACHE: names no file", "CACHE：未指定文件"}),
    NameOfCase());
