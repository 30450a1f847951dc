#include "support/real_libraries.h"
#include "support/run_tool.h"
#include "support/schema.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

using namespace iosphoto::test;

class ToolOnRealLibrary : public testing::TestWithParam<RealLibrary>
{
protected:
    void SetUp() override
    {
        const std::filesystem::path source = folderOf(GetParam());
        if (!exists(source))
            GTEST_SKIP() << "the real libraries are not there";
        for (const char *file : {"Photos.sqlite", "Photos.sqlite-wal"})
            writeFile(folder_ / file, readFile(source / file));
    }

    std::string database() const { return (folder_ / "Photos.sqlite").string(); }

    /// The rows that a script finds in the database; -1 where it fails.
    int rowsOf(const std::string &script) const
    {
        int rows = 0;
        sqlite3 *connection = nullptr;
        sqlite3_open(database().c_str(), &connection);
        const auto countRow = [](void *count, int, char **, char **) {
            ++*static_cast<int *>(count);
            return 0;
        };
        const int result = sqlite3_exec(connection, script.c_str(), countRow, &rows, nullptr);
        sqlite3_close(connection);
        return result == SQLITE_OK ? rows : -1;
    }

    TemporaryFolder folder_;
};

TEST_P(ToolOnRealLibrary, StatementsRun)
{
    const ToolRun run = runTool({"statements", database()});
    EXPECT_EQ(run.error, "");
    EXPECT_EQ(run.status, 0);
    EXPECT_GT(rowsOf(run.out), 3) << run.out; // the lookups find a row each
}

TEST_P(ToolOnRealLibrary, UsualEntityNumbersAreThoseOfTheLibrary)
{
    const ToolRun run = runTool({"statements", "--ios", GetParam().iosVersion});
    EXPECT_EQ(run.status, 0);
    EXPECT_GT(rowsOf(run.out), 3) << run.out;
}

TEST_P(ToolOnRealLibrary, DoesNotDifferFromItself)
{
    const ToolRun run = runTool({"diff", database(), database(), "--ios", GetParam().iosVersion,
                                 "--product", "iPhone14,2"});
    EXPECT_EQ(run.out, "no difference\n");
    EXPECT_EQ(run.status, 0);
}

INSTANTIATE_TEST_SUITE_P(Generations, ToolOnRealLibrary, testing::ValuesIn(realLibraries),
                         SchemaName());
