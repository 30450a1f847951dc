// The commands of docs/lab.md are run on made-up backups.
#include "docs/documents.h"
#include "support/backup_builder.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cstdlib>
#include <map>
#include <sstream>
#include <sys/wait.h>

using namespace iosphoto::test;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Pair;
using testing::UnorderedElementsAre;

namespace fs = std::filesystem;

namespace {

/// The code blocks of one language, in their order.
std::vector<std::string> blocksOf(const std::string &language)
{
    std::vector<std::string> texts;
    for (const CodeBlock &block : codeBlocksIn("docs/lab.md")) {
        if (block.language != language)
            continue;
        std::string &text = texts.emplace_back();
        for (const std::string &line : block.lines)
            text += line + "\n";
    }
    return texts;
}

bool isInstalled(const std::string &program)
{
    return std::system(("command -v " + program + " > /dev/null").c_str()) == 0;
}

struct ShellRun
{
    Lines out;
    int status;
};

/// A folder of three backups, of which one is encrypted, in which the commands are run.
class Lab : public testing::Test
{
protected:
    Lab()
    {
        LibraryBuilder anna(ios15);
        anna.asset("IMG_0001.HEIC").set("ZORIGINALFILESIZE", 1000);
        anna.asset("IMG_0002.HEIC").set("ZORIGINALFILESIZE", 200);
        writeBackup(folder_ / "backups/anna", anna);
        LibraryBuilder ben(ios15);
        ben.asset("IMG_0001.HEIC").set("ZORIGINALFILESIZE", 30).in(ben.album("Lake"));
        writeBackup(folder_ / "backups/ben", ben);
        BackupOptions encrypted;
        encrypted.isEncrypted = true;
        writeBackup(folder_ / "backups/locked", ben, encrypted);
    }

    ShellRun shell(const std::string &script) const
    {
        writeFile(folder_ / "script", script);
        const std::string line = "cd '" + folder_.path().string() + "' && PATH='" +
                                 fs::path(IOSPHOTO_TOOL).parent_path().string() +
                                 "':\"$PATH\" sh script > printed 2> complaints";
        const int status = std::system(line.c_str());
        return {linesOf(readFile(folder_ / "printed")), WEXITSTATUS(status)};
    }

    /// The first two blocks, on which most others build.
    int readAll() const { return shell(blocksOf("sh").at(0) + blocksOf("sh").at(1)).status; }
    /// The second one again.
    int resume() const { return shell(blocksOf("sh").at(1)).status; }

    /// What was noted of each try, by the name of the backup.
    std::multimap<std::string, std::string> tries() const
    {
        std::multimap<std::string, std::string> statuses;
        Lines lines = linesOfFile("log.tsv");
        for (std::size_t i = 1; i < lines.size(); ++i) {
            std::istringstream columns(lines[i]);
            std::vector<std::string> cells;
            for (std::string cell; std::getline(columns, cell, '\t');)
                cells.push_back(cell);
            statuses.emplace(fs::path(cells.at(8)).filename(), cells.at(6));
        }
        return statuses;
    }

    Lines linesOfFile(const std::string &name) const { return linesOf(readFile(folder_ / name)); }

    const TemporaryFolder folder_;
};

} // namespace

#define NEEDS(program)                                                                             \
    if (!isInstalled(program))                                                                     \
    GTEST_SKIP() << program << " is not installed"

TEST_F(Lab, ReadsAllBackupsInParallel)
{
    NEEDS("parallel");
    EXPECT_EQ(readAll(), 1); // so many failed
    EXPECT_EQ(linesOfFile("out/anna.jsonl").size(), 2);
    EXPECT_EQ(linesOfFile("out/ben.jsonl").size(), 1);
    EXPECT_TRUE(fs::exists(folder_ / "out/ben.evidence.json"));
    EXPECT_THAT(linesOfFile("out/anna.err"), IsEmpty());
    EXPECT_THAT(linesOfFile("out/locked.err"), ElementsAre(HasSubstr("encrypted backup")));
    EXPECT_FALSE(fs::exists(folder_ / "out/locked.jsonl"));
}

TEST_F(Lab, KeepsItsResultsWhenItIsRunAgain)
{
    NEEDS("parallel");
    readAll();
    const std::string before = readFile(folder_ / "out/anna.jsonl");
    EXPECT_EQ(readAll(), 1);
    EXPECT_EQ(readFile(folder_ / "out/anna.jsonl"), before);
    EXPECT_THAT(tries(), UnorderedElementsAre(Pair("anna", "0"), Pair("ben", "0"),
                                              Pair("locked", "6"), Pair("locked", "6")));
}

TEST_F(Lab, ReadsAllAnewWithoutItsLogAndLosesNothingMeanwhile)
{
    NEEDS("parallel");
    readAll();
    const std::string before = readFile(folder_ / "out/anna.jsonl");
    fs::remove(folder_ / "log.tsv");
    fs::rename(folder_ / "backups/ben", folder_ / "ben");
    EXPECT_EQ(resume(), 2);
    EXPECT_EQ(readFile(folder_ / "out/anna.jsonl"), before);
    EXPECT_EQ(linesOfFile("out/ben.jsonl").size(), 1); // as it was read before
    EXPECT_THAT(tries(),
                UnorderedElementsAre(Pair("anna", "0"), Pair("ben", "3"), Pair("locked", "6")));
}

TEST_F(Lab, ReadsWhatFailedOnceItIsMendedAndWhatIsNew)
{
    NEEDS("parallel");
    readAll();
    fs::remove_all(folder_ / "backups/locked");
    LibraryBuilder open(ios15);
    open.asset("IMG_0001.HEIC");
    writeBackup(folder_ / "backups/locked", open);
    writeBackup(folder_ / "backups/another", open);
    writeFile(folder_ / "list", readFile(folder_ / "list") + "backups/another" + '\0');
    EXPECT_EQ(resume(), 0);
    EXPECT_EQ(linesOfFile("out/locked.jsonl").size(), 1);
    EXPECT_EQ(linesOfFile("out/another.jsonl").size(), 1);
    EXPECT_TRUE(fs::exists(folder_ / "out/locked.evidence.json"));
    EXPECT_THAT(tries(),
                UnorderedElementsAre(Pair("anna", "0"), Pair("ben", "0"), Pair("locked", "6"),
                                     Pair("locked", "0"), Pair("another", "0")));
    EXPECT_THAT(shell(blocksOf("sh").at(2)).out, IsEmpty());
}

TEST_F(Lab, ReadsEncryptedBackupsOnceTheirPasswordsAreThere)
{
    NEEDS("parallel");
    readAll();
    fs::create_directory(folder_ / "passwords");
    writeFile(folder_ / "passwords/locked", EncryptionOptions().password);
    EXPECT_EQ(resume(), 0);
    EXPECT_EQ(linesOfFile("out/locked.jsonl").size(), 1);
    EXPECT_THAT(linesOfFile("out/locked.err"), IsEmpty());
}

TEST_F(Lab, ListsWhatDidNotGoWell)
{
    NEEDS("parallel");
    readAll();
    const ShellRun run = shell(blocksOf("sh").at(2));
    EXPECT_THAT(run.out, ElementsAre("6 sh read-one.sh backups/locked"));
    EXPECT_EQ(run.status, 0);
}

TEST_F(Lab, SumsUpWithJq)
{
    NEEDS("parallel");
    NEEDS("jq");
    readAll();
    const ShellRun run = shell(blocksOf("sh").at(3));
    EXPECT_THAT(run.out, ElementsAre("backups/anna\t2\t1200", "backups/ben\t1\t30"));
    EXPECT_EQ(run.status, 0);
}

TEST_F(Lab, AsksDuckDbForAllAtOnce)
{
    NEEDS("parallel");
    NEEDS("duckdb");
    readAll();
    writeFile(folder_ / "query.sql", blocksOf("sql").at(0));
    const ShellRun run = shell("duckdb -csv -noheader < query.sql");
    EXPECT_THAT(run.out,
                ElementsAre(HasSubstr("backups/anna,2,1200,"), HasSubstr("backups/ben,1,30,")));
    EXPECT_EQ(run.status, 0);
}

TEST_F(Lab, AsksTheFileOfOneBackup)
{
    writeFile(folder_ / "query.sql", blocksOf("sql").at(1));
    const ShellRun run = shell("set -e\n"
                               "iosphoto photos backups/ben --quiet --sqlite ben.db\n"
                               "sqlite3 ben.db < query.sql\n");
    EXPECT_THAT(run.out, testing::Contains("Lake|1"));
    EXPECT_EQ(run.status, 0);
}

TEST_F(Lab, ComparesTwoDatesOfOnePhone)
{
    fs::create_directories(folder_ / "2024-01");
    fs::create_directories(folder_ / "2024-06");
    fs::rename(folder_ / "backups/anna", folder_ / "2024-01/backup");
    LibraryBuilder later(ios15);
    later.asset("IMG_0001.HEIC").set("ZORIGINALFILESIZE", 1000);
    writeBackup(folder_ / "2024-06/backup", later);
    EXPECT_EQ(shell(blocksOf("sh").at(4)).status, 1); // which is: different
    EXPECT_THAT(linesOfFile("changes.jsonl"), ElementsAre(HasSubstr("IMG_0002.HEIC")));
}

TEST(LabBlocks, AreAllRunHere)
{
    std::map<std::string, int> counts;
    for (const CodeBlock &block : codeBlocksIn("docs/lab.md"))
        ++counts[block.language];
    // Spark alone would take longer to start than all tests.
    EXPECT_THAT(counts, UnorderedElementsAre(Pair("sh", 5), Pair("sql", 2), Pair("python", 1)));
}
