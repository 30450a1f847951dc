#include "support/library_builder.h"
#include "support/run_tool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

using namespace iosphoto::test;
using nlohmann::json;
using testing::HasSubstr;

class ToolInfo : public testing::Test
{
protected:
    ToolRun info(std::vector<std::string> more = {}) const
    {
        std::vector<std::string> arguments = {"info",  library_.path(), "--as-of",   "2020-02-01",
                                              "--ios", "15.4",          "--product", "iPhone14,2"};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return runTool(arguments);
    }
    json document() const { return json::parse(info({"--json"}).out); }

    LibraryBuilder library_{ios15};
};

TEST_F(ToolInfo, ShowsDeviceDatesAndCounts)
{
    library_.madeBy(15502, "19H12");
    library_.asset("IMG_0001.JPG").set("ZFAVORITE", 1);
    library_.asset("IMG_0002.MOV").video();

    const ToolRun run = info();

    EXPECT_EQ(run.out, "LIBRARY      " + library_.path() +
                           "\n"
                           "Device       iPhone14,2\n"
                           "System       iOS 15.4\n"
                           "Build        19H12\n"
                           "Schema       iOS 15 to 17, model 15502\n"
                           "As of        2020-02-01 00:00 UTC\n"
                           "Albums       5\n"
                           "First taken  2020-01-04 10:40 UTC\n"
                           "Last taken   2020-01-05 10:40 UTC\n"
                           "\n"
                           "KIND      COUNT        SIZE\n"
                           "all           2      2.0 kB\n"
                           "photo         1  1000 bytes\n"
                           "video         1  1000 bytes\n"
                           "favorite      1  1000 bytes\n"
                           "\n"
                           "IN THE DATABASE  COUNT\n"
                           "photos               2\n"
                           "- listed             2\n"
                           "albums               0\n"
                           "- listed             0\n"
                           "\n"
                           "There is no write-ahead log (-wal).\n");
    EXPECT_EQ(run.error, "");
    EXPECT_EQ(run.status, 0);
}

TEST_F(ToolInfo, CountsWhatTheTrashLeavesOut)
{
    const std::int64_t february2020 = 602208000; // 2020-02-01, in seconds since 2001
    const std::int64_t day = 86400;
    library_.asset("LONG_AGO.JPG").trashedAt(february2020 - 30 * day);
    library_.asset("JUST_KEPT.JPG").trashedAt(february2020 - 30 * day + 1);

    const ToolRun run = info();

    EXPECT_EQ(run.error, "iosphoto: left out: 1 in the trash for 30 days; iosphoto photos "
                         "--left-out lists them\n");
    EXPECT_THAT(run.out, HasSubstr("- left out: in the trash for 30 days      1\n"));
    EXPECT_EQ(document()["leftOut"], 1);
    EXPECT_THAT(run.out, HasSubstr("deleted      1  1000 bytes\n"));
}

TEST_F(ToolInfo, LeavesDatesBeyondAllCalendarsOut)
{
    library_.asset("A.JPG");
    library_.asset("B.JPG").set("ZDATECREATED", 123456789012345);
    EXPECT_EQ(document()["lastCreated"], "2020-01-05T10:40:00Z");
}
