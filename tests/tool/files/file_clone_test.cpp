#include "files/file_clone.h"

#include "files/consistent_copy.h"
#include "support/cloning_disk.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <cerrno>

using namespace iosphoto::test;
using iosphoto::tool::cloneFile;
using iosphoto::tool::copyConsistently;

namespace fs = std::filesystem;

class FileClone : public testing::Test
{
protected:
    FileClone() { writeFile(original_, content_); }
    void SetUp() override
    {
        if (!CloningDisk::isPossible())
            GTEST_SKIP() << "what the disk can is not known here";
    }

    void expectCopy() const
    {
        EXPECT_EQ(readFile(copy_), content_);
        EXPECT_EQ(fs::last_write_time(copy_), fs::last_write_time(original_));
        EXPECT_EQ(fs::status(copy_).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    }

    TemporaryFolder folder_;
    const fs::path original_ = folder_ / "original";
    const fs::path copy_ = folder_ / "copy";
    const std::string content_ = std::string(3'000'000, 'x') + "end";
};

TEST_F(FileClone, IsTheCopyWhereTheDiskMakesOne)
{
    const CloningDisk disk;
    copyConsistently({{original_, copy_}});
    EXPECT_EQ(disk.count(), 1);
    expectCopy();
}

TEST_F(FileClone, IsNotNeededForACopy)
{
    for (const int error : {EOPNOTSUPP, EXDEV, EINVAL, ENOTTY}) {
        const CloningDisk disk(error);
        copyConsistently({{original_, copy_}});
        EXPECT_EQ(disk.count(), 1);
        expectCopy();
    }
}

TEST_F(FileClone, LeavesNothingWhereThereIsNone)
{
    const CloningDisk disk(EOPNOTSUPP);
    EXPECT_FALSE(cloneFile(0, copy_));
    EXPECT_FALSE(fs::exists(copy_));
}
