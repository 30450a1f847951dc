#include "files/file_set.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

using iosphoto::test::TemporaryFolder;
using iosphoto::test::writeFile;
using iosphoto::tool::FileSet;

namespace fs = std::filesystem;

TEST(FileSet, KnowsAFileUnderAnyName)
{
    const TemporaryFolder folder;
    const fs::path file = folder / "file";
    writeFile(file, "");
    fs::create_symlink(file, folder / "link");
    fs::create_hard_link(file, folder / "twin");
    writeFile(folder / "other", "");
    const FileSet files(file);
    EXPECT_TRUE(files.contains(folder.path() / "." / "file"));
    EXPECT_TRUE(files.contains(folder / "link"));
    EXPECT_TRUE(files.contains(folder / "twin"));
    EXPECT_FALSE(files.contains(folder / "other"));
}

TEST(FileSet, KnowsAFileThatIsNotThere)
{
    const TemporaryFolder folder;
    const FileSet files(folder / "file");
    EXPECT_TRUE(files.contains(folder.path() / "." / "file"));
    EXPECT_TRUE(FileSet("file").contains(fs::current_path() / "file"));
    EXPECT_FALSE(files.contains(folder / "other"));
    EXPECT_FALSE(FileSet(fs::path()).contains(folder / "other"));
    EXPECT_FALSE(FileSet(fs::path()).contains(fs::path()));
}
