#include "files/new_file.h"

#include "process/failure.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace iosphoto::test;
using iosphoto::tool::Failure;
using iosphoto::tool::NewFile;

namespace fs = std::filesystem;

class ToolNewFile : public testing::Test
{
protected:
    TemporaryFolder folder_;
    fs::path path_ = folder_ / "new";
};

TEST_F(ToolNewFile, IsWrittenPieceByPieceForTheOwnerOnly)
{
    NewFile file(path_, 6);
    EXPECT_TRUE(file.append("abc"));
    EXPECT_FALSE(file.isComplete());
    EXPECT_TRUE(file.append("def"));
    EXPECT_TRUE(file.isComplete());
    file.close(1'600'000'000);
    EXPECT_EQ(readFile(path_), "abcdef");
    EXPECT_EQ(fs::status(path_).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(ToolNewFile, DoesNotBecomeLargerThanWasSaid)
{
    NewFile file(path_, 4);
    EXPECT_TRUE(file.append("abc"));
    EXPECT_FALSE(file.append("def"));
    file.close(0);
    EXPECT_EQ(readFile(path_), "abc");
}

TEST_F(ToolNewFile, OfUnknownSizeTakesAll)
{
    NewFile file(path_, std::nullopt);
    EXPECT_TRUE(file.append("abc"));
    EXPECT_TRUE(file.isComplete());
}

TEST_F(ToolNewFile, IsNotBegunWithoutRoom)
{
    constexpr std::uint64_t huge = std::uint64_t{1} << 62U;
    try {
        NewFile(path_, huge);
        ADD_FAILURE() << "found room";
    } catch (const Failure &failure) {
        EXPECT_EQ(failure.what(), "cannot write '" + path_.string() +
                                      "': 4611686018427387904 bytes are more than there is room "
                                      "for; set TMPDIR to a folder with room for it");
        EXPECT_EQ(failure.status(), iosphoto::tool::CannotAccess);
    }
    EXPECT_FALSE(fs::exists(path_));
}
