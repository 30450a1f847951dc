#include "support/expect_failure.h"
#include "support/library_builder.h"
#include "support/sample_thumb_cache.h"

#include <nlohmann/json.hpp>

#include <sys/stat.h>

using namespace iosphoto::test;
using testing::HasSubstr;
using testing::StartsWith;

namespace fs = std::filesystem;

class ToolThumbBadInput : public testing::Test
{
protected:
    ToolThumbBadInput() : cache_(folder_ / "120x120.ithmb"), bytes_(sampleThumbCache(120).bytes())
    {
        writeFile(cache_, bytes_);
    }
    ~ToolThumbBadInput() override { EXPECT_EQ(readFile(cache_), bytes_); }

    /// Changes the cache that the test is about.
    void write(const std::string &bytes)
    {
        bytes_ = bytes;
        writeFile(cache_, bytes);
    }

    ToolRun thumb(std::vector<std::string> arguments) const
    {
        arguments.insert(arguments.begin(), {"thumb", cache_.string()});
        return runTool(arguments);
    }

    std::string path(const std::string &name) const { return (folder_ / name).string(); }

    TemporaryFolder folder_;
    fs::path cache_;
    std::string bytes_;
};

TEST_F(ToolThumbBadInput, WrongUsage)
{
    expectFailure(runTool({"thumb"}), "CACHE is required", 2);
    expectFailure(thumb({"--index", "0"}), "--index requires --output", 2);
    expectFailure(thumb({"--all"}), "--all requires --output", 2);
    expectFailure(thumb({"-o", path("x")}), "--output requires --index or --all", 2);
    expectFailure(thumb({"--index", "-1", "-o", path("x")}),
                  "--index: '-1' should look like 7; see iosphoto --help\n", 2);
    expectFailure(thumb({"--index", "0x1", "-o", path("x")}), "--index: '0x1' should look like 7",
                  2);
    expectFailure(thumb({"--index", "0", "-o", ""}), "--output: names no file; see", 2);
    expectFailure(thumb({"--sheet", ""}), "--sheet: names no file; see", 2);
    expectFailure(thumb({"--index", "0", "--all", "-o", path("x")}), "--index excludes --all", 2);
    expectFailure(thumb({"--index", "0", "--png", "-o", path("x")}), "--png requires --all", 2);
    expectFailure(thumb({"--all", "-o", path("x"), "--sheet", path("x.png")}),
                  "--output excludes --sheet", 2);
    expectFailure(thumb({"--index", "0", "-o", path("x.jpg")}),
                  "cannot write '" + path("x.jpg") + "': thumbnails are written as .bmp or .png",
                  2);
    expectFailure(thumb({"--sheet", path("x.bmp")}),
                  "cannot write '" + path("x.bmp") + "': a contact sheet is a PNG file", 2);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder_.path()), {}), 1);
}

TEST_F(ToolThumbBadInput, IndexWithoutAThumbnail)
{
    const std::string subject = quoted(cache_) + " has no thumbnail ";
    expectFailure(thumb({"--index", "6", "-o", path("x")}), subject + "6: its last record is 5", 2);
    expectFailure(thumb({"--index", "99999999999", "-o", path("x")}),
                  subject + "2147483647: its last record is 5", 2);
    expectFailure(thumb({"--index", "2", "-o", path("x")}), subject + "2: that record is empty", 2);
    EXPECT_FALSE(exists(folder_ / "x"));
}

TEST_F(ToolThumbBadInput, PathThatNamesNoFile)
{
    expectFailure(runTool({"thumb", path("none")}),
                  "cannot read '" + path("none") + "': No such file or directory; check the path",
                  3);
    expectFailure(runTool({"thumb", folder_.path().string()}),
                  "cannot read " + quoted(folder_.path()) + ": it is a folder; name a cache in it",
                  3);
    ASSERT_EQ(mkfifo(path("pipe").c_str(), 0600), 0);
    expectFailure(
        runTool({"thumb", path("pipe")}),
        "cannot read '" + path("pipe") + "': it is a pipe; send it through standard input", 3);
}

TEST_F(ToolThumbBadInput, FileThatThisUserMayNotRead)
{
    fs::permissions(cache_, fs::perms::none);
    const auto run = runToolAsPlainUser({"thumb", cache_.string()});
    fs::permissions(cache_, fs::perms::owner_all);
    if (!run)
        GTEST_SKIP() << "no other user can run the tool here";
    expectFailure(*run, "cannot read " + quoted(cache_) + ": Permission denied; run as a user", 3);
}

TEST_F(ToolThumbBadInput, FileThatIsNoCache)
{
    const std::string subject = quoted(cache_) + " is not a thumbnail cache of a known format; ";
    const LibraryBuilder library(ios15);
    for (const std::string &bytes :
         {std::string("short"), std::string(100000, 'x'), readFile(library.path())}) {
        write(bytes);
        expectFailure(thumb({}), subject + "name one, such as 120x120.ithmb", 4);
        expectFailure(thumb({"--all", "-o", path("x")}), subject, 4);
        EXPECT_FALSE(exists(folder_ / "x"));
    }
    write("");
    expectFailure(thumb({}), quoted(cache_) + " is empty, not a thumbnail cache; name one", 4);
}

TEST_F(ToolThumbBadInput, FileThatWasCutOffIsShownWithAWarning)
{
    bytes_.resize(3 * 28828 + 1000);
    write(bytes_);
    const ToolRun run = thumb({});
    EXPECT_THAT(run.out, StartsWith("format 120, 3 records of 28,828 bytes, 2 with a thumbnail\n"));
    EXPECT_EQ(run.error, "iosphoto: " + quoted(cache_) +
                             " has more than is shown here: a last record that is cut off (copy it "
                             "from the device again)\n");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(nlohmann::json::parse(thumb({"--json"}).out)["isComplete"], false);
}

TEST_F(ToolThumbBadInput, ZerosBehindTheLastRecordAreNothingMissing)
{
    bytes_.resize(3 * 28828 + 1000, '\0');
    bytes_.replace(3 * 28828, 1000, 1000, '\0');
    write(bytes_);
    const ToolRun run = thumb({});
    EXPECT_EQ(run.error, "");
    EXPECT_EQ(run.status, 0);
}

TEST_F(ToolThumbBadInput, DamagedRecordIsLeftOutWithAWarning)
{
    bytes_[2 * 28828 - 1] = 'x'; // the end of the trailer of record 1
    write(bytes_);
    const ToolRun run = thumb({"--all", "-o", path("pictures")});
    EXPECT_THAT(run.out, StartsWith("wrote 2 files, "));
    EXPECT_THAT(run.error, HasSubstr("has more than is shown here: 1 damaged record (copy it"));
    EXPECT_EQ(run.status, 1);
    expectFailure(thumb({"--index", "1", "-o", path("x")}),
                  quoted(cache_) + " has no thumbnail 1: that record is damaged; copy the file", 3);
}

TEST_F(ToolThumbBadInput, PictureThatItsRecordCannotHoldIsDamaged)
{
    bytes_[28828 - 8] = 121; // the height of record 0
    write(bytes_);
    const ToolRun run = thumb({});
    EXPECT_THAT(run.error, HasSubstr("1 damaged record"));
    EXPECT_EQ(run.status, 1);
}

TEST_F(ToolThumbBadInput, TheCacheIsNeverTheOutput)
{
    fs::create_symlink(cache_, folder_ / "link.png");
    for (const std::string &output : {cache_.string(), path("link.png")}) {
        const ToolRun run = output == cache_.string() ? thumb({"--index", "0", "-o", output})
                                                      : thumb({"--sheet", output});
        EXPECT_EQ(run.status, 2) << run;
        EXPECT_EQ(run.out, "");
    }
    const fs::path asOutput = folder_ / "0000.bmp";
    fs::rename(cache_, asOutput);
    expectFailure(runTool({"thumb", asOutput.string(), "--all", "-o", folder_.path().string()}),
                  quoted(asOutput) + " is the source, which is never changed", 2);
    fs::rename(asOutput, cache_);
}

TEST_F(ToolThumbBadInput, OutputThatIsNoFileOrFolder)
{
    expectFailure(thumb({"--index", "0", "-o", folder_.path().string()}),
                  "cannot write " + quoted(folder_.path()) + ": it is a folder; name a file in it",
                  3);
    expectFailure(thumb({"--index", "0", "-o", "/dev/null"}),
                  "cannot write '/dev/null': it is not a file; name a file", 3);
    expectFailure(thumb({"--index", "0", "-o", path("none/x.bmp")}),
                  "cannot write '" + path("none/x.bmp") + "': No such file or directory; choose",
                  3);
    expectFailure(thumb({"--all", "-o", cache_.string()}),
                  "cannot make the folder " + quoted(cache_) + ": Not a directory; choose", 3);
}

TEST_F(ToolThumbBadInput, FolderThatThisUserMayNotWrite)
{
    fs::create_directory(folder_ / "closed");
    fs::permissions(folder_ / "closed", fs::perms::owner_all | fs::perms::others_exec);
    fs::permissions(cache_, fs::perms::all);
    const auto run =
        runToolAsPlainUser({"thumb", cache_.string(), "--index", "0", "-o", path("closed/x.bmp")});
    if (!run)
        GTEST_SKIP() << "no other user can run the tool here";
    if (run->status == 0)
        GTEST_SKIP() << "this user may write there";
    expectFailure(*run, "cannot write '" + path("closed/x.bmp") + "': Permission denied; choose",
                  3);
}

TEST_F(ToolThumbBadInput, FullDiskLeavesWhatWasThere)
{
    writeFile(folder_ / "one.bmp", "old");
    const std::vector<std::string> arguments = {"thumb", cache_.string(), "--index", "0",
                                                "-o",    path("one.bmp"), "--force"};
    expectFailure(runToolOnFullDisk(arguments, 5000),
                  "cannot write '" + path("one.bmp") + "': File too large; choose", 3);
    EXPECT_EQ(readFile(folder_ / "one.bmp"), "old");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder_.path()), {}), 2);

    // The first two have 9,666 bytes, the third more.
    const ToolRun all =
        runToolOnFullDisk({"thumb", cache_.string(), "--all", "-o", path("all")}, 10000);
    expectFailure(all, "cannot write '" + path("all/0003.bmp") + "': File too large; choose", 3);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder_ / "all"), {}), 2);
}
