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
    EXPECT_EQ(run.error, "iosphoto: cannot write the output: File too large; choose another place "
                         "for the output\n");
    EXPECT_EQ(run.status, 3);
}

TEST(ToolStandardOutput, DiskWithoutRoomIsNamed)
{
    const fs::path withoutRoom = "/dev/full";
    if (!exists(withoutRoom))
        GTEST_SKIP() << "there is no such device here";
    const TemporaryFolder folder;
    const fs::path cache = folder / "cache";
    writeFile(cache, sampleThumbCache(120).bytes());
    expectFailure(runToolInto(withoutRoom, {"thumb", cache.string()}),
                  "cannot write the output: the disk is full; make room, or choose another place",
                  3);
}

TEST(ToolClosedDescriptors, AreNotThoseOfFilesThatItWrites)
{
    const TemporaryFolder folder;
    const fs::path cache = folder / "cache";
    const fs::path picture = folder / "picture.bmp";
    writeFile(cache, sampleThumbCache(120).bytes());
    const std::vector<std::string> command = {"thumb", cache.string(), "--index",
                                              "0",     "-o",           picture.string()};
    ASSERT_EQ(runTool(command).status, 0);
    const std::string usual = readFile(picture);
    for (const std::vector<int> &closed : {std::vector<int>{1}, {0, 1}, {0, 1, 2}}) {
        fs::remove(picture);
        EXPECT_EQ(runToolWithout(closed, command).status, 3);
        EXPECT_EQ(readFile(picture), usual);
        EXPECT_EQ(readFile(cache), sampleThumbCache(120).bytes());
    }
}

TEST(ToolStandardOutput, ThatIsClosedIsNamed)
{
    const TemporaryFolder folder;
    const fs::path cache = folder / "cache";
    writeFile(cache, sampleThumbCache(120).bytes());
    for (const std::vector<int> &closed : {std::vector<int>{1}, std::vector<int>{0, 1}})
        EXPECT_EQ(runToolWithout(closed, {"thumb", cache.string()}),
                  (ToolRun{"",
                           "iosphoto: cannot write the output: standard output is closed; send it "
                           "to a terminal, a file or a program\n",
                           3}));
    EXPECT_EQ(runToolWithout({1, 2}, {"thumb", cache.string()}).status, 3);
}

TEST(ToolClosedDescriptors, AreNoSource)
{
    for (const char *command : {"photos", "thumb"}) {
        const ToolRun run = runToolWithout({0}, {command, "/dev/stdin"});
        EXPECT_THAT(run.error,
                    testing::HasSubstr("cannot read standard input: it is closed; send"));
        EXPECT_EQ(run.status, 3);
    }
}

TEST(ToolStandardOutput, ThatFailsKeepsTheWordsOfEvidence)
{
    const TemporaryFolder folder;
    const fs::path cache = folder / "cache";
    const std::string evidence = (folder / "evidence.json").string();
    writeFile(cache, sampleThumbCache(120).bytes());
    constexpr std::size_t room = 300; // for the words, for neither document
    const ToolRun run =
        runToolOnFullDisk({"thumb", cache.string(), "--json", "--evidence", evidence}, room);
    const std::string why = "File too large; choose another place for the output\n";
    EXPECT_EQ(run.error, "iosphoto: cannot write '" + evidence + "': " + why +
                             "iosphoto: cannot write the output: " + why);
    EXPECT_EQ(run.status, 3);
}
