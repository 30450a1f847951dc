#include "support/backup_builder.h"
#include "support/run_tool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace iosphoto::test;
using testing::HasSubstr;

namespace {

/// A backup of years ago, made ten days after its photo went to the trash.
class OldBackup
{
public:
    OldBackup()
    {
        const BackupOptions options;
        LibraryBuilder library(ios15);
        library.asset("IMG_0001.JPG").trashedAt(sinceTheEpoch(options.lastBackup) - 10 * day);
        writeBackup(folder_.path(), library, options);
    }

    ToolRun photos(std::vector<std::string> options = {}) const
    {
        std::vector<std::string> command = {"photos", folder_.path().string(), "--fields",
                                            "fileName,daysLeft"};
        command.insert(command.end(), options.begin(), options.end());
        return runTool(command);
    }

private:
    static constexpr std::int64_t day = 24 * 60 * 60;

    static std::int64_t sinceTheEpoch(std::int64_t unixTime) { return unixTime - 978307200; }

    TemporaryFolder folder_;
};

} // namespace

TEST(ToolDefaultMoment, OfABackupIsWhenItWasMadeSoThatItKeepsItsTrash)
{
    const ToolRun run = OldBackup().photos();
    EXPECT_THAT(run.out, HasSubstr("IMG_0001.JPG         20\n"));
    EXPECT_THAT(run.error, HasSubstr(", as of 2023-11-14 22:13 UTC (Last Backup Date)\n"));
    EXPECT_EQ(run.status, 0);
}

TEST(ToolDefaultMoment, GivesWayToNowWhichEmptiesTheTrash)
{
    const ToolRun run = OldBackup().photos({"--as-of", "now", "--ios", "15.7"});
    EXPECT_EQ(run.out, "fileName  DAYS LEFT\n");
    EXPECT_THAT(
        run.error,
        HasSubstr("left out: 1 in the trash for 30 days; iosphoto photos --left-out lists them\n"));
    EXPECT_EQ(run.status, 0);
}
