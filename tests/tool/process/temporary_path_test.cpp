#include "process/temporary_path.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

using namespace iosphoto::test;
using namespace iosphoto::tool;

namespace fs = std::filesystem;

class TemporaryPathTest : public testing::Test
{
protected:
    fs::path makeFile()
    {
        writeFile(folder_ / "passing", "new");
        return folder_ / "passing";
    }
    fs::path makeFolder()
    {
        fs::create_directories(folder_ / "passing/inner");
        writeFile(folder_ / "passing/inner/file", "content");
        return folder_ / "passing";
    }

    TemporaryFolder folder_;
};

TEST_F(TemporaryPathTest, GoesWithTheObjectAndWithAllItHolds)
{
    {
        const TemporaryPath path([this] { return makeFolder(); });
        EXPECT_EQ(path.path(), folder_ / "passing");
        EXPECT_TRUE(exists(path.path() / "inner/file"));
    }
    EXPECT_TRUE(fs::is_empty(folder_.path()));
}

TEST_F(TemporaryPathTest, StaysUnderTheNameItIsKeptAs)
{
    {
        TemporaryPath path([this] { return makeFile(); });
        EXPECT_FALSE(path.keepAs(folder_ / "kept"));
        removeTemporaryPaths();
    }
    EXPECT_EQ(readFile(folder_ / "kept"), "new");
    EXPECT_FALSE(exists(folder_ / "passing"));
}

TEST_F(TemporaryPathTest, RemainsTemporaryWhereItCannotBeKept)
{
    {
        TemporaryPath path([this] { return makeFile(); });
        EXPECT_EQ(path.keepAs(folder_ / "none/kept"), std::errc::no_such_file_or_directory);
        EXPECT_TRUE(exists(path.path()));
    }
    EXPECT_TRUE(fs::is_empty(folder_.path()));
}

TEST_F(TemporaryPathTest, IsNoneWhereItCannotBeMade)
{
    EXPECT_THROW(TemporaryPath([]() -> fs::path { throw std::runtime_error("full"); }),
                 std::runtime_error);
    removeTemporaryPaths();
}

TEST_F(TemporaryPathTest, AllAreRemovedAtOnce)
{
    const TemporaryPath folder([this] { return makeFolder(); });
    const TemporaryPath file([this] {
        writeFile(folder_ / "file", "new");
        return folder_ / "file";
    });
    removeTemporaryPaths();
    EXPECT_TRUE(fs::is_empty(folder_.path()));
}
