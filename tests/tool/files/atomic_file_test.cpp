#include "files/atomic_file.h"

#include "files/output_file.h"
#include "rows/sqlite_output.h"
#include "support/network_disk.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

using namespace iosphoto::test;
using namespace iosphoto::tool;

namespace fs = std::filesystem;

class UnfinishedFile : public testing::Test
{
protected:
    /// Lets a process begin to write and die.
    void killWriter() const
    {
        const pid_t writer = fork();
        ASSERT_GE(writer, 0);
        if (writer == 0) {
            AtomicFile file(folder_ / "out");
            file.write("half");
            std::raise(SIGKILL);
        }
        int status = 0;
        ASSERT_EQ(waitpid(writer, &status, 0), writer);
        ASSERT_TRUE(WIFSIGNALED(status));
        ASSERT_EQ(count(), 1);
    }

    std::ptrdiff_t count() const
    {
        return std::distance(fs::directory_iterator(folder_.path()), fs::directory_iterator());
    }

    TemporaryFolder folder_;
};

TEST_F(UnfinishedFile, OfAWriterThatWasKilledIsRemoved)
{
    killWriter();
    removeUnfinishedFiles(folder_.path());
    EXPECT_EQ(count(), 0);
}

TEST_F(UnfinishedFile, IsRemovedByTheNextThatWritesThere)
{
    FileUse files;
    killWriter();
    writeOutput(files, folder_ / "out", "whole", "");
    EXPECT_EQ(count(), 1);
    fs::remove(folder_ / "out");
    killWriter();
    OutputFolder(folder_.path()).write(files, "out", "whole", "");
    EXPECT_EQ(count(), 1);
    fs::remove(folder_ / "out");
    killWriter();
    SqliteOutput(files, folder_ / "out", "", {{"a", 1}}).finish();
    EXPECT_EQ(count(), 1);
}

TEST_F(UnfinishedFile, OfALivingWriterStays)
{
    AtomicFile file(folder_ / "out");
    file.write("whole");
    removeUnfinishedFiles(folder_.path());
    EXPECT_EQ(count(), 1);
    file.finish();
    removeUnfinishedFiles(folder_.path());
    EXPECT_EQ(readFile(folder_ / "out"), "whole");
}

TEST_F(UnfinishedFile, OnADiskOfOtherMachinesStays)
{
    if (!NetworkDisk::isPossible())
        GTEST_SKIP() << "calls cannot be replaced here";
    killWriter();
    const NetworkDisk disk;
    removeUnfinishedFiles(folder_.path());
    EXPECT_EQ(count(), 1);
}

TEST_F(UnfinishedFile, ThatIsSomethingElseOfTheSameNameStays)
{
    const fs::path name = folder_ / ".iosphoto-unfinished-abcdef";
    writeFile(folder_ / "mine", "kept");
    fs::create_symlink(folder_ / "mine", name);
    removeUnfinishedFiles(folder_.path());
    EXPECT_EQ(readFile(name), "kept");
    fs::remove(name);
    fs::create_directory(name);
    removeUnfinishedFiles(folder_.path());
    EXPECT_TRUE(fs::is_directory(name));
}

TEST_F(UnfinishedFile, OfTheUserStays)
{
    for (const char *const name :
         {".iosphoto-unfinished-photos", ".iosphoto-unfinished-", ".iosphoto-unfinished-my.txt"}) {
        const fs::path file = folder_ / name;
        writeFile(file, "kept");
        fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write |
                                  fs::perms::group_read | fs::perms::others_read);
    }
    const fs::path longer = folder_ / ".iosphoto-unfinished-holiday";
    writeFile(longer, "kept");
    fs::permissions(longer, fs::perms::owner_read | fs::perms::owner_write);
    removeUnfinishedFiles(folder_.path());
    EXPECT_EQ(count(), 4);
}
