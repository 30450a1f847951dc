#include "support/expect_failure.h"
#include "support/run_on.h"
#include "support/two_snapshots.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <sstream>

using namespace iosphoto::test;
using testing::HasSubstr;

namespace {

const std::vector<std::string> inChinese = {"--lang", "zh"};

bool isAscii(const std::string &text)
{
    return std::all_of(text.begin(), text.end(),
                       [](char byte) { return static_cast<signed char>(byte) >= 0; });
}

/// The entries of a help that explain options, each as one line.
std::vector<std::string> optionsIn(std::string help)
{
    const std::string furtherLine = "\n" + std::string(30, ' ');
    for (std::size_t at; (at = help.find(furtherLine)) != std::string::npos;)
        help.replace(at, furtherLine.size(), " ");
    std::istringstream lines(help);
    std::vector<std::string> options;
    for (std::string line; std::getline(lines, line);)
        if (line.rfind("  -", 0) == 0)
            options.push_back(line);
    return options;
}

} // namespace

class ChineseHelp : public testing::TestWithParam<std::string>
{
};

TEST_P(ChineseHelp, DescribesEachOptionInChinese)
{
    const ToolRun run = runTool({GetParam(), "--help", "--lang", "zh"});
    EXPECT_EQ(run.error, "");
    EXPECT_EQ(run.status, 0);
    const std::vector<std::string> options = optionsIn(run.out);
    EXPECT_GT(options.size(), 5U);
    for (const std::string &option : options)
        EXPECT_FALSE(isAscii(option)) << option;
}

INSTANTIATE_TEST_SUITE_P(Commands, ChineseHelp,
                         testing::Values("info", "albums", "photos", "diff", "statements",
                                         "thumb"));

class ChineseOutput : public testing::Test
{
protected:
    LibraryBuilder library_{ios15};
};

TEST_F(ChineseOutput, OfAlbumsIsAligned)
{
    library_.asset("IMG_0001.JPG").set("ZFAVORITE", 1);
    EXPECT_EQ(runOn(library_, "albums", inChinese),
              (ToolRun{"序号  类型      名称  数量       大小  最早        最晚        UUID\n"
                       "   0  相机胶卷           1  1000 字节  2020-01-05  2020-01-05\n"
                       "   1  照片图库           0     0 字节\n"
                       "   2  个人收藏           1  1000 字节  2020-01-05  2020-01-05\n"
                       "   3  最近删除           0     0 字节\n",
                       "", 0}));
}

TEST_F(ChineseOutput, OfPhotosNamesWhatTheyAre)
{
    library_.asset("IMG_0001.JPG").set("ZFAVORITE", 1).set("ZHASADJUSTMENTS", 1);
    EXPECT_EQ(runOn(library_, "photos", inChinese),
              (ToolRun{"拍摄时间              文件                             像素       大小  "
                       "说明              相簿\n"
                       "2020-01-05 10:40 UTC  DCIM/100APPLE/IMG_0001.JPG  4032x3024  1000 字节  "
                       "个人收藏、已编辑  相机胶卷、个人收藏\n",
                       "", 0}));
}

TEST_F(ChineseOutput, OfInfoNamesWhatIsInTheLog)
{
    library_.execute("pragma journal_mode = wal; pragma wal_autocheckpoint = 0");
    library_.asset("IMG_0001.JPG");
    const ToolRun run = runOn(library_, "info", inChinese);
    EXPECT_THAT(run.out, HasSubstr("\n已添加      DCIM/100APPLE/IMG_0001.JPG  "));
    EXPECT_THAT(run.out, HasSubstr("\n照片     1  1000 字节\n"));
    EXPECT_EQ(run.error, "");
    EXPECT_EQ(run.status, 0);
}

TEST(ChineseDifference, NamesChanges)
{
    TwoSnapshots phone;
    for (LibraryBuilder *library : {&phone.before, &phone.after})
        library->asset("IMG_0001.JPG");
    phone.after.execute("update ZASSET set ZFAVORITE = 1, ZHASADJUSTMENTS = 1");
    phone.after.album("Trip");
    EXPECT_EQ(phone.diff(inChinese),
              (ToolRun{"变化            文件                        说明\n"
                       "相簿：新增      Trip\n"
                       "已编辑、已更改  DCIM/100APPLE/IMG_0001.JPG  已加入个人收藏\n"
                       "\n"
                       "1 项已编辑、1 项已更改；相簿：1 项新增\n",
                       "", 1}));
}

TEST_F(ChineseOutput, OfAFailureHasNoEnglishWordsOfSqlite)
{
    library_.close();
    std::filesystem::resize_file(library_.path(), std::filesystem::file_size(library_.path()) / 2);
    expectFailure(runOn(library_, "albums", inChinese),
                  "无法读取“" + library_.path() +
                      "”：数据库内容已损坏；请从设备或备份重新拷贝，连同其 -wal 文件\n",
                  3);
}
