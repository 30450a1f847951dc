#include "files/atomic_file.h"
#include "files/output_file.h"
#include "process/failure.h"
#include "rows/sqlite_output.h"
#include "support/disk_calls.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>

using namespace iosphoto::test;
using namespace iosphoto::tool;
using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;
using testing::StartsWith;

namespace fs = std::filesystem;

class ToolDiskSync : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!DiskCalls::isPossible())
            GTEST_SKIP() << "calls of the system cannot be noted here";
    }

    /// What is said when a file is written.
    std::string complaint()
    {
        try {
            writeOutput(files_, file_, "content", source_);
            return {};
        } catch (const Failure &failure) {
            EXPECT_EQ(failure.status(), CannotAccess);
            return failure.what();
        }
    }

    bool isEmpty() const { return fs::is_empty(folder_.path()); }

    FileUse files_;
    TemporaryFolder folder_;
    fs::path file_ = folder_ / "out";
    fs::path source_ = "/nowhere";
    std::string nameOfFolder_ = folder_.path().filename().string();
};

TEST_F(ToolDiskSync, ComesBeforeTheNameAndBehindItThatOfTheFolder)
{
    const DiskCalls calls;
    EXPECT_EQ(complaint(), "");
    EXPECT_THAT(calls.all(), ElementsAre(StartsWith("sync .iosphoto-"), "rename to out",
                                         "sync " + nameOfFolder_));
}

TEST_F(ToolDiskSync, OfADatabaseComesBehindItsLastPage)
{
    const DiskCalls calls;
    SqliteOutput output(files_, file_, source_, Json::object({{"a", 1}}));
    output.finish();
    EXPECT_THAT(calls.all(), ElementsAre(StartsWith("sync .iosphoto-"), "rename to out",
                                         "sync " + nameOfFolder_));
}

TEST_F(ToolDiskSync, OfAFolderComesOnceForAllOfItsFiles)
{
    const DiskCalls calls;
    const OutputFolder to(folder_ / "new" / "to");
    for (const char *name : {"1", "2"})
        to.write(files_, name, "content", source_);
    to.finish();
    EXPECT_THAT(calls.all(), ElementsAre(StartsWith("sync .iosphoto-"), "rename to 1",
                                         StartsWith("sync .iosphoto-"), "rename to 2", "sync to",
                                         "sync new", "sync " + nameOfFolder_));
}

TEST_F(ToolDiskSync, ThatTheFileSystemCannotDoIsNoFailure)
{
    for (const int error : {EINVAL, ENOTSUP, EBADF}) {
        const DiskCalls calls(error);
        EXPECT_EQ(complaint(), "");
        EXPECT_EQ(readFile(file_), "content");
    }
}

TEST_F(ToolDiskSync, ThatFailsForAFileLeavesNothing)
{
    for (const int error : {EIO, ENOSPC, EDQUOT}) {
        const DiskCalls calls(error);
        EXPECT_THAT(complaint(), EndsWith("; choose another place for the output"));
        EXPECT_TRUE(isEmpty());
    }
}

TEST_F(ToolDiskSync, ThatFailsForTheFolderIsSaid)
{
    const DiskCalls calls(EIO, nameOfFolder_);
    EXPECT_EQ(complaint(), "cannot write '" + file_.string() +
                               "': Input/output error; choose another place for the output");
}

TEST_F(ToolDiskSync, OfADatabaseThatFailsLeavesNothing)
{
    const DiskCalls calls(EIO);
    {
        SqliteOutput output(files_, file_, source_, Json::object({{"a", 1}}));
        EXPECT_THROW(output.finish(), Failure);
    }
    EXPECT_TRUE(isEmpty());
}
