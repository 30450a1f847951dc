#include "support/backup_builder.h"
#include "support/library_builder.h"
#include "support/run_on.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

using namespace iosphoto::test;
using testing::HasSubstr;

TEST(ToolIncompleteSource, LogThatIsNoneIsSaid)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG");
    library.close();
    writeFile(library.path() + "-wal", std::string(5000, 'x'));

    const ToolRun run = runOn(library, "photos");

    EXPECT_THAT(run.out, HasSubstr("IMG_0001.JPG"));
    EXPECT_EQ(run.error, "iosphoto: the -wal of '" + library.path() +
                             "' is no write-ahead log, so changes that it was to hold are missing; "
                             "copy it from the device or the backup again, its -wal with it\n");
    EXPECT_EQ(run.status, 1);
}

TEST(ToolStatements, OfVersionsThatAreNotKnown)
{
    const ToolRun old = runTool({"statements", "--ios", "5.1"});
    EXPECT_EQ(old, (ToolRun{"",
                            "iosphoto: the databases of iOS 5.1 are not known; name a version from "
                            "6 on\n",
                            5}));
    const ToolRun newer = runTool({"statements", "--ios", "99", "--quiet"});
    EXPECT_EQ(newer.error, "iosphoto: iOS 99 is newer than all that are known, so it is read like "
                           "iOS 18; check a few photos against the device\n");
    EXPECT_EQ(newer.status, 0);
}

TEST(ToolInfoLines, AreTheDocumentInOneLine)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG");
    const ToolRun line = runOn(library, "info", {"--jsonl"});
    EXPECT_EQ(line.out.find('\n'), line.out.size() - 1);
    EXPECT_EQ(nlohmann::json::parse(line.out),
              nlohmann::json::parse(runOn(library, "info", {"--json"}).out));
}
