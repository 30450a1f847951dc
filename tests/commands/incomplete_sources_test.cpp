#include "support/library_builder.h"
#include "support/run_on.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

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

TEST(ToolIncompleteSource, IsSaidOfItsStatementsToo)
{
    LibraryBuilder library(ios15);
    library.close();
    writeFile(library.path() + "-wal", std::string(5000, 'x'));

    const ToolRun run = runTool(
        {"statements", library.path(), "--ios", "15.0", "--product", "iPhone14,2", "--quiet"});

    EXPECT_THAT(run.out, HasSubstr("-- pass camera-roll, "));
    EXPECT_THAT(run.error, HasSubstr("' is no write-ahead log"));
    EXPECT_EQ(run.status, 1);
}
