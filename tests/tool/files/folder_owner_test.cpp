#include "files/folder_owner.h"

#include "support/network_disk.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <memory>
#include <sys/stat.h>

using namespace iosphoto::test;
using namespace iosphoto::tool;

namespace fs = std::filesystem;

class FolderOwnerTest : public testing::Test
{
protected:
    fs::path makeFolder(const std::string &name) const
    {
        fs::create_directory(folder_ / name);
        fs::permissions(folder_ / name, fs::perms::owner_all);
        writeFile(folder_ / name / "Photos.sqlite", "private");
        return folder_ / name;
    }

    /// One whose owner is dead.
    fs::path makeLeftFolder(const std::string &name) const
    {
        fs::path folder = makeFolder(name);
        const FolderOwner owner(folder);
        return folder;
    }

    /// One that says that it was made since another start, of this machine or another.
    fs::path makeFolderOfAnotherStart(const std::string &name) const
    {
        fs::path folder = makeLeftFolder(name);
        std::string start = readFile(folder / FolderOwner::mark);
        EXPECT_FALSE(start.empty());
        start.front() = start.front() == '0' ? '1' : '0';
        writeFile(folder / FolderOwner::mark, start);
        return folder;
    }

    void clean() const { removeFoldersOfTheDead(folder_.path(), "ours-"); }

    TemporaryFolder folder_;
};

TEST_F(FolderOwnerTest, WhatTheDeadLeftIsRemoved)
{
    makeLeftFolder("ours-1");
    makeLeftFolder("ours-2-withdrawn");
    clean();
    EXPECT_TRUE(fs::is_empty(folder_.path()));
}

TEST_F(FolderOwnerTest, WhatTheLivingUseStays)
{
    const fs::path folder = makeFolder("ours-1");
    auto owner = std::make_unique<FolderOwner>(folder);
    clean();
    EXPECT_TRUE(fs::exists(folder / "Photos.sqlite"));
    owner.reset();
    clean();
    EXPECT_FALSE(fs::exists(folder));
}

TEST_F(FolderOwnerTest, WhatNobodyMarkedStays)
{
    const fs::path folder = makeFolder("ours-backup");
    clean();
    EXPECT_TRUE(fs::exists(folder / "Photos.sqlite"));
    writeFile(folder / FolderOwner::mark, ""); // just being made
    clean();
    EXPECT_TRUE(fs::exists(folder / "Photos.sqlite"));
}

TEST_F(FolderOwnerTest, WhatTheDeadLeftBeforeTheMachineWasStartedAnewIsRemoved)
{
    makeFolderOfAnotherStart("ours-1");
    clean();
    EXPECT_TRUE(fs::is_empty(folder_.path()));
}

TEST_F(FolderOwnerTest, WhatAnotherMachineMayHaveMarkedStays)
{
    if (!NetworkDisk::isPossible())
        GTEST_SKIP() << "calls cannot be replaced here";
    const NetworkDisk disk;
    const fs::path other = makeFolderOfAnotherStart("ours-1");
    const fs::path own = makeLeftFolder("ours-2");
    clean();
    EXPECT_TRUE(fs::exists(other / "Photos.sqlite"));
    EXPECT_FALSE(fs::exists(own));
}

TEST_F(FolderOwnerTest, WhatHasAnotherNameStays)
{
    const fs::path folder = makeLeftFolder("theirs-1");
    clean();
    EXPECT_TRUE(fs::exists(folder / "Photos.sqlite"));
}

TEST_F(FolderOwnerTest, WhatOthersMayEnterStays)
{
    const fs::path folder = makeLeftFolder("ours-1");
    fs::permissions(folder, fs::perms::owner_all | fs::perms::group_exec);
    clean();
    EXPECT_TRUE(fs::exists(folder / "Photos.sqlite"));
}

TEST_F(FolderOwnerTest, LinksAreNotFollowed)
{
    const fs::path folder = makeLeftFolder("theirs-1");
    fs::create_symlink(folder, folder_ / "ours-link");
    const fs::path other = makeFolder("ours-2");
    fs::create_symlink(folder / FolderOwner::mark, other / FolderOwner::mark);
    clean();
    EXPECT_TRUE(fs::exists(folder / "Photos.sqlite"));
    EXPECT_TRUE(fs::exists(other / "Photos.sqlite"));
}

TEST_F(FolderOwnerTest, FoldersInsideAreNotEntered)
{
    const fs::path folder = makeLeftFolder("ours-1");
    fs::create_directory(folder / "inner");
    writeFile(folder / "inner/file", "kept");
    clean();
    EXPECT_TRUE(fs::exists(folder / "inner/file"));
}

TEST_F(FolderOwnerTest, PipeInThePlaceOfAMarkKeepsNobodyWaiting)
{
    const fs::path folder = makeFolder("ours-1");
    ASSERT_EQ(mkfifo((folder / FolderOwner::mark).c_str(), S_IRUSR | S_IWUSR), 0);
    clean();
    EXPECT_TRUE(fs::exists(folder / "Photos.sqlite"));
}
