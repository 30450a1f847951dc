#include "support/backup_builder.h"
#include "support/expect_failure.h"
#include "support/library_builder.h"

using namespace iosphoto::test;

namespace fs = std::filesystem;

namespace {

const std::string isTheSource = " is the source, which is never changed; choose another place for "
                                "the output\n";

ToolRun albumsInto(const std::string &source, const char *option, const fs::path &output)
{
    return runTool({"albums", source, option, output.string(), "--quiet"});
}

} // namespace

class ToolOutputBeside : public testing::TestWithParam<const char *>
{
};

TEST_P(ToolOutputBeside, TheDatabaseIsRefusedWhereSqliteWouldTakeItForItsOwn)
{
    const LibraryBuilder library(ios15);
    const fs::path output = library.path() + GetParam();
    for (const char *option : {"--sqlite", "--evidence"}) {
        expectFailure(albumsInto(library.path(), option, output), quoted(output) + isTheSource, 2);
        EXPECT_FALSE(exists(output));
    }
}

INSTANTIATE_TEST_SUITE_P(Suffixes, ToolOutputBeside, testing::Values("-wal", "-journal", "-shm"));

TEST(ToolOutput, IntoTheFolderThatIsTheSourceIsRefused)
{
    LibraryBuilder library(ios15);
    const TemporaryFolder folder;
    fs::create_directories(folder / "Media/PhotoData");
    library.close();
    fs::copy_file(library.path(), folder / "Media/PhotoData/Photos.sqlite");
    const fs::path output = folder / "Media/out.db";
    expectFailure(albumsInto((folder / "Media").string(), "--sqlite", output),
                  quoted(output) + isTheSource, 2);
    EXPECT_FALSE(exists(output));
    EXPECT_EQ(albumsInto((folder / "Media").string(), "--sqlite", folder / "out.db").status, 0);
}
