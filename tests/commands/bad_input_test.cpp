#include "support/damage.h"
#include "support/expect_failure.h"
#include "support/library_builder.h"

#include <sys/stat.h>

using namespace iosphoto::test;
using testing::HasSubstr;

namespace fs = std::filesystem;

class ToolBadInput : public testing::Test
{
protected:
    TemporaryFolder folder_;
};

TEST_F(ToolBadInput, WrongUsage)
{
    expectFailure(runTool({"--color", "never"}), "a command is required", 2);
    expectFailure(runTool({"albums"}), "SOURCE is required", 2);
    expectFailure(runTool({"sing", "a.sqlite"}), "", 2);
    expectFailure(runTool({"albums", "a.sqlite", "--loud"}), "", 2);
    expectFailure(runTool({"albums", "a.sqlite", "--ios", "new"}),
                  "--ios: 'new' should look like 17.4", 2);
    expectFailure(runTool({"albums", "a.sqlite", "--product", "iPhone 14"}),
                  "--product: 'iPhone 14' should look like iPhone14,2", 2);
    expectFailure(runTool({"albums", "a.sqlite", "--ios", ""}), "--ios: '' should look like 17.4",
                  2);
    expectFailure(runTool({"albums", "a.sqlite", "--product", std::string(120000, 'a')}),
                  "--product: 'aaa", 2);
}

TEST_F(ToolBadInput, HelpAndVersionAreNoFailures)
{
    for (const char *option : {"--help", "--version"}) {
        const ToolRun run = runTool({option});
        EXPECT_THAT(run.out, HasSubstr("iosphoto"));
        EXPECT_EQ(run.error, "");
        EXPECT_EQ(run.status, 0);
    }
    EXPECT_THAT(runTool({"photos", "--help"}).out, HasSubstr("Examples:"));
}

TEST_F(ToolBadInput, PathThatNamesNoFile)
{
    const fs::path missing = folder_ / "missing.sqlite";
    expectFailure(runTool({"albums", missing.string()}),
                  "cannot read " + quoted(missing) + ": No such file or directory; check the path",
                  3);
    EXPECT_FALSE(exists(missing));
    expectFailure(runTool({"albums", folder_.path().string()}),
                  quoted(folder_.path()) + " holds no photo library", 4);
    const fs::path pipe = folder_ / "pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    expectFailure(runTool({"albums", pipe.string()}),
                  "cannot read " + quoted(pipe) + ": it is a pipe; send it through standard input",
                  3);
}

TEST_F(ToolBadInput, FileThatThisUserMayNotRead)
{
    const fs::path secret = folder_ / "Photos.sqlite";
    writeFile(secret, "secret");
    fs::permissions(secret, fs::perms::none);
    const auto run = runToolAsPlainUser({"albums", secret.string()});
    if (!run)
        GTEST_SKIP() << "no other user can run the tool here";
    expectFailure(*run, "cannot read " + quoted(secret) + ": Permission denied; run as a user", 3);
}

TEST_F(ToolBadInput, FileThatIsNoPhotoDatabase)
{
    const fs::path text = folder_ / "notes.txt";
    writeFile(text, std::string(5000, 'x'));
    expectFailure(runTool({"photos", text.string()}),
                  quoted(text) + " is not a SQLite database, or it is encrypted; name the Photos",
                  4);

    const fs::path empty = folder_ / "empty.sqlite";
    writeFile(empty, "");
    expectFailure(runTool({"photos", empty.string()}),
                  quoted(empty) + " is empty; copy it from the device or the backup again\n", 4);
}

TEST_F(ToolBadInput, TemporaryFolderThatIsNotThere)
{
    const LibraryBuilder library(ios15);
    const ToolRun run = runTool({"albums", library.path()}, {{"TMPDIR", "/nowhere"}});
    expectFailure(
        run, "cannot make a temporary folder in '/nowhere': No such file or directory; set TMPDIR",
        3);
}

TEST_F(ToolBadInput, SchemaThatDoesNotFit)
{
    LibraryBuilder library(ios15);
    const std::string subject = "'" + library.path() + "' is a photo database";
    expectFailure(
        runTool({"albums", library.path(), "--ios", "18.0"}),
        subject + ", but not of iOS 18.0 and iPhone14,2; try --ios 17 --product iPhone14,2\n", 5);
    library.execute("alter table ZASSET rename column ZFILENAME to ZNAMEOFFILE");
    expectFailure(runTool({"albums", library.path()}), subject + " of no known schema", 5);
}

TEST_F(ToolBadInput, FileThatWasCutShort)
{
    LibraryBuilder library(ios15);
    library.close();
    fs::resize_file(library.path(), fs::file_size(library.path()) / 2);
    expectFailure(runTool({"photos", library.path()}),
                  "cannot read '" + library.path() + "': database disk image is malformed; copy it",
                  3);
}

class ToolDamagedTable : public testing::TestWithParam<const char *>
{
protected:
    /// Runs the tool on a library in which the first page of the case's table is garbage.
    static ToolRun photos()
    {
        LibraryBuilder library(ios15);
        library.asset("IMG_0001.JPG").in(library.album("Trip"));
        damageTable(library, GetParam());
        return runTool({"photos", library.path()});
    }
};

using ToolDamageEverywhere = ToolDamagedTable;

TEST_P(ToolDamageEverywhere, IsNotShownAsAnEmptyLibrary)
{
    const ToolRun run = photos();
    EXPECT_EQ(run.out, "");
    EXPECT_THAT(run.error, HasSubstr("database disk image is malformed"));
    EXPECT_EQ(run.status, 3);
}

INSTANTIATE_TEST_SUITE_P(Tables, ToolDamageEverywhere,
                         testing::Values("ZASSET", "ZADDITIONALASSETATTRIBUTES", "Z_PRIMARYKEY"));

using ToolDamageSomewhere = ToolDamagedTable;

TEST_P(ToolDamageSomewhere, IsSaidBesideWhatCouldBeRead)
{
    const ToolRun run = photos();
    EXPECT_THAT(run.out, HasSubstr("IMG_0001.JPG"));
    EXPECT_THAT(run.error, HasSubstr("is damaged (database disk image is malformed) and photos are "
                                     "missing from albums here; copy it from the device"));
    EXPECT_EQ(run.status, 1);
}

INSTANTIATE_TEST_SUITE_P(Tables, ToolDamageSomewhere, testing::Values("Z_27ASSETS"));

TEST_F(ToolBadInput, DatabaseLargerThanTheRoomForItsCopy)
{
    const fs::path huge = folder_ / "Photos.sqlite";
    writeFile(huge, std::string("SQLite format 3\0", 16));
    const std::uintmax_t size = fs::space(fs::temp_directory_path()).available + 1'000'000'000;
    std::error_code error;
    fs::resize_file(huge, size, error); // takes no room, as it is a hole
    if (error)
        GTEST_SKIP() << "no file may be that large here";
    constexpr std::size_t room = 1'000'000; // for whatever would be copied all the same
    const ToolRun run = runToolOnFullDisk({"photos", huge.string()}, room);
    EXPECT_EQ(run.out, "");
    EXPECT_THAT(run.error, HasSubstr(std::to_string(size) +
                                     " bytes are more than there is room for; set TMPDIR to a "
                                     "folder with room for it\n"));
    EXPECT_EQ(run.status, 3);
}

TEST_F(ToolBadInput, NeitherTheSourceNorTheTemporaryFolderKeepsATrace)
{
    LibraryBuilder library(ios15);
    library.execute("pragma journal_mode = wal");
    library.asset("IMG_0001.JPG");
    fs::copy_file(library.path(), folder_ / "Photos.sqlite");
    fs::copy_file(library.path() + "-wal", folder_ / "Photos.sqlite-wal");
    const std::string log = readFile(folder_ / "Photos.sqlite-wal");
    const TemporaryFolder temporary;
    const Environment environment = {{"TMPDIR", temporary.path().string()}};
    const std::string database = (folder_ / "Photos.sqlite").string();

    const ToolRun run = runTool({"photos", database}, environment);
    const ToolRun failed = runTool({"photos", database, "--ios", "18"}, environment);

    EXPECT_THAT(run.out, HasSubstr("IMG_0001.JPG"));
    EXPECT_EQ(failed.status, 5);
    EXPECT_TRUE(fs::is_empty(temporary.path()));
    EXPECT_EQ(readFile(folder_ / "Photos.sqlite-wal"), log);
    EXPECT_FALSE(exists(folder_ / "Photos.sqlite-shm"));
}
