#include "support/archive_builder.h"
#include "support/json_schema.h"
#include "support/sample_thumb_cache.h"
#include "support/sha256_of.h"
#include "support/source_folder.h"

#include <nlohmann/json.hpp>

#include <sys/stat.h>

using namespace iosphoto::test;
using nlohmann::json;
using testing::HasSubstr;

namespace fs = std::filesystem;

class ToolStandardInput : public SourceFolder
{
protected:
    /// The database with what is in its log.
    std::string wholeDatabase()
    {
        library_.execute("pragma wal_checkpoint(truncate)");
        return readFile(library_.path());
    }
    std::string archive() const
    {
        return readFile(packed(putMedia(folder_ / "all/A/Media"), folder_ / "all", tar, "A/Media"));
    }
};

TEST_F(ToolStandardInput, IsADatabase)
{
    const std::string database = wholeDatabase();
    for (const char *const name : {"-", "/dev/stdin"}) {
        const ToolRun run = runToolOnPipe(database, {"albums", name});
        expectWhole(run);
        EXPECT_THAT(run.error, HasSubstr(" (now, as standard input has no date)\n"));
        EXPECT_THAT(runToolOnPipe(database, {"albums", name, "--quiet"}).error,
                    HasSubstr("iosphoto: a write-ahead log (-wal) does not come through standard "
                              "input, so what only that holds is not shown\n"));
    }
}

TEST_F(ToolStandardInput, LeavesOpenWhetherThereIsALog)
{
    EXPECT_THAT(runToolOnPipe(wholeDatabase(), {"info", "-"}).out,
                HasSubstr("Whether there is a write-ahead log (-wal) is not known: none comes "
                          "through standard input.\n"));
}

TEST_F(ToolStandardInput, IsASourceOfEachCommand)
{
    const std::string database = wholeDatabase();
    for (const char *const command : {"info", "albums", "photos", "statements"}) {
        const ToolRun run = runToolOnPipe(database, {command, "-", "--json"});
        EXPECT_EQ(run.status, 0) << command << run.error;
        EXPECT_TRUE(json::accept(run.out)) << command;
    }
    EXPECT_EQ(json::parse(runToolOnPipe(database, {"info", "-", "--json"}).out)["source"], "-");
}

TEST_F(ToolStandardInput, IsAnArchive)
{
    const std::string packedMedia = archive();
    expectWhole(runToolOnPipe(packedMedia, {"albums", "-"}));
    expectWhole(runToolOnPipe(packedMedia, {"albums", "/dev/stdin/A"}));
    EXPECT_THAT(runToolOnPipe(packedMedia, {"backups", "-"}).out,
                HasSubstr("/dev/stdin/A/Media\n"));
}

TEST_F(ToolStandardInput, IsNamedWhereItIsACutArchive)
{
    const std::string whole = archive();
    expectFailure(runToolOnPipe(whole.substr(0, whole.size() / 3), {"albums", "-"}),
                  "the archive '/dev/stdin' is damaged or cut short", 3);
}

TEST_F(ToolStandardInput, HasOtherNames)
{
    const std::string database = wholeDatabase();
    for (const char *const name : {"/dev/fd/0", "/proc/self/fd/0"})
        expectWhole(runToolOnPipe(database, {"albums", name}));
    expectWhole(runToolOnPipe(archive(), {"albums", "-/A"}));
    expectFailure(runToolOnPipe(database, {"albums", "-/A"}),
                  "there is no 'A' in '/dev/stdin'; check the path\n", 3);
}

TEST_F(ToolStandardInput, IsTheOnlyPipeThatIsRead)
{
    const fs::path pipe = folder_ / "pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), S_IRUSR | S_IWUSR), 0);
    for (const char *const command : {"info", "thumb", "backups"})
        expectFailure(runTool({command, pipe.string()}),
                      "cannot read " + quoted(pipe) +
                          ": it is a pipe; send it through standard input, and name that as -\n",
                      3);
}

TEST_F(ToolStandardInput, IsOneSideOfADifference)
{
    const std::string database = wholeDatabase();
    EXPECT_EQ(runToolOnPipe(database, {"diff", "-", library_.path()}).status, 0);
    EXPECT_EQ(runToolOnPipe(database, {"diff", library_.path(), "-"}).status, 0);
    expectFailure(runToolOnPipe(database, {"diff", "-", "/dev/stdin"}),
                  "A and B cannot both be standard input; name a file for one of them\n", 2);
}

TEST_F(ToolStandardInput, IsAThumbnailCache)
{
    const std::string cache = sampleThumbCache(120).bytes();
    writeFile(folder_ / "cache", cache);
    EXPECT_EQ(runToolOnPipe(cache, {"thumb", "-"}).out,
              runTool({"thumb", (folder_ / "cache").string()}).out);
}

TEST_F(ToolStandardInput, ThatIsATerminalIsRefused)
{
    for (const char *const command : {"info", "thumb"})
        expectFailure(runToolFromTerminal({command, "-"}),
                      "standard input is a terminal; send a database or an archive through a pipe, "
                      "or name a file\n",
                      2);
}

TEST_F(ToolStandardInput, ThatIsEmptyIsSaid)
{
    expectFailure(runTool({"info", "-"}), "'-' is empty; ", 4);
}

TEST_F(ToolStandardInput, ThatIsClosedIsSaid)
{
    expectFailure(runToolWithout({0}, {"info", "-"}),
                  "cannot read standard input: it is closed; send a database", 3);
}

TEST_F(ToolStandardInput, FromAFileIsReadWithTheLogBesideIt)
{
    for (const char *const name : {"-", "/dev/stdin"})
        expectWhole(runToolFrom(library_.path(), {"albums", name}));
    putMedia(folder_ / "Media");
    expectWhole(runToolFrom((folder_ / "Media").string(), {"albums", "-"}));
}

TEST_F(ToolStandardInput, LeavesNothing)
{
    const TemporaryFolder temporary;
    expectWhole(
        runToolOnPipe(wholeDatabase(), {"albums", "-"}, {{"TMPDIR", temporary.path().string()}}));
    EXPECT_TRUE(fs::is_empty(temporary.path()));
}

class EvidenceOfStandardInput : public ToolStandardInput
{
protected:
    json evidenceOf(const std::string &input, std::vector<std::string> command) const
    {
        const std::string file = (folder_ / "evidence.json").string();
        command.insert(command.end(), {"--evidence", file});
        EXPECT_EQ(runToolOnPipe(input, command).status, 0);
        json document = json::parse(readFile(file));
        fs::remove(file);
        EXPECT_EQ(schemaComplaints("evidence", document), "");
        return document;
    }

    static json inputOf(const std::string &bytes)
    {
        return {{"path", "-"},         {"pathBytes", nullptr},      {"size", bytes.size()},
                {"modified", nullptr}, {"sha256", sha256Of(bytes)}, {"after", nullptr},
                {"isUnchanged", true}};
    }
};

TEST_F(EvidenceOfStandardInput, HasTheHashOfTheBytesThatWereRead)
{
    const std::string database = wholeDatabase();
    EXPECT_EQ(evidenceOf(database, {"albums", "-"})["inputs"], json::array({inputOf(database)}));
    const std::string backup =
        readFile(packed(writeBackup(folder_ / "backup", library_), folder_ / "backup", zip));
    EXPECT_EQ(evidenceOf(backup, {"albums", "-"})["inputs"], json::array({inputOf(backup)}));
    const std::string cache = sampleThumbCache(120).bytes();
    EXPECT_EQ(evidenceOf(cache, {"thumb", "-"})["inputs"], json::array({inputOf(cache)}));
}
