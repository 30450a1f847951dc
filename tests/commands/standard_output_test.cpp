#include "support/expect_failure.h"
#include "support/library_builder.h"
#include "support/sample_thumb_cache.h"

#include <csignal>

using namespace iosphoto::test;

namespace fs = std::filesystem;

class ToolClosedPipe : public testing::TestWithParam<int>
{
protected:
    ToolClosedPipe()
    {
        for (int number = 0; number < GetParam(); ++number)
            library_.asset("IMG_" + std::to_string(number) + ".JPG");
    }

    LibraryBuilder library_{ios15};
};

TEST_P(ToolClosedPipe, EndsTheCommandWithoutAWord)
{
    const TemporaryFolder temporary;
    const ToolRun run = runToolForNoReader({"photos", library_.path(), "--ios", "15.0", "--product",
                                            "iPhone14,2", "--as-of", "2020-02-01", "--json"},
                                           {{"TMPDIR", temporary.path().string()}});
    EXPECT_EQ(run, (ToolRun{"", "", 128 + SIGPIPE}));
    EXPECT_TRUE(fs::is_empty(temporary.path()));
}

// One that is written at the end, and one that does not fit into a block.
INSTANTIATE_TEST_SUITE_P(Photos, ToolClosedPipe, testing::Values(1, 100),
                         testing::PrintToStringParamName());

TEST(ToolStandardOutput, FullDiskIsSaidOnce)
{
    const TemporaryFolder folder;
    const fs::path cache = folder / "cache";
    writeFile(cache, sampleThumbCache(120).bytes());
    constexpr std::size_t room = 100;
    const ToolRun run = runToolOnFullDisk({"thumb", cache.string(), "--json"}, room);
    EXPECT_EQ(run.out.size(), room);
    EXPECT_EQ(run.error, "iosphoto: cannot write the output; is the disk full?\n");
    EXPECT_EQ(run.status, 3);
}
