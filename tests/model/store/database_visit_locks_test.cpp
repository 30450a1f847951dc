// A database that somebody else is writing to.
#include "model/store/database_visit.h"
#include "support/database.h"
#include "support/meanwhile.h"
#include "support/report.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <memory>

using namespace iosphoto;
using namespace iosphoto::test;

namespace {

/// A connection of somebody else's.
class Writer
{
public:
    explicit Writer(const std::string &path) : connection_(openDatabase(path))
    {
        sqlite3_busy_timeout(connection_.get(), 10000);
        execute("pragma synchronous = off");
    }

    void execute(const char *sql) const
    {
        EXPECT_EQ(sqlite3_exec(connection_.get(), sql, nullptr, nullptr, nullptr), SQLITE_OK)
            << sql;
    }

private:
    SqliteConnection connection_;
};

} // namespace

class LockedDatabase : public testing::Test
{
protected:
    LockedDatabase() : library_(ios15)
    {
        library_.asset("IMG_0001.JPG").in(library_.album("Trip"));
        library_.close();
    }

    LibraryBuilder library_;
};

TEST_F(LockedDatabase, IsWaitedFor)
{
    const Writer writer(library_.path());
    writer.execute("begin exclusive");
    std::thread commits([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        writer.execute("commit");
    });
    const ReportedBuild build(library_);
    commits.join();
    EXPECT_TRUE(build.report.isComplete());
    EXPECT_EQ(build.cameraRoll(), Files{"IMG_0001.JPG"});
}

TEST_F(LockedDatabase, IsNotWaitedForAgainOnceThatWasInVain)
{
    const Writer writer(library_.path());
    writer.execute("begin exclusive");
    const auto start = std::chrono::steady_clock::now();
    const ReportedBuild build(library_);
    const auto waited = std::chrono::steady_clock::now() - start;
    writer.execute("commit");
    EXPECT_EQ(build.result, 0);
    for (const CPassReport &pass : build.report.passes)
        EXPECT_EQ(pass.code, 5) << pass.pass;
    EXPECT_EQ(build.of(Pass::CameraRoll).text, "database is locked");
    EXPECT_GE(waited, std::chrono::seconds(4));
    EXPECT_LT(waited, std::chrono::seconds(15)); // of 35
    EXPECT_EQ(ReportedBuild(library_).cameraRoll(), Files{"IMG_0001.JPG"});
}

TEST_F(LockedDatabase, ChangeOfAWriterThatDiesMeanwhileIsNotRolledBack)
{
    int ready[2];
    ASSERT_EQ(pipe(ready), 0);
    const pid_t writer = fork();
    if (writer == 0) { // by system calls and SQLite alone, and without an end of its own
        sqlite3 *connection = nullptr;
        sqlite3_open(library_.path().c_str(), &connection);
        sqlite3_exec(connection,
                     "pragma cache_size = 1; begin exclusive; "
                     "create table filler as with recursive n(i) as (select 1 union "
                     "all select i + 1 from n limit 2000) select hex(zeroblob(100)) "
                     "from n; update ZASSET set ZFILENAME = 'UNFINISHED.JPG'",
                     nullptr, nullptr, nullptr);
        write(ready[1], "x", 1);
        usleep(300'000);
        _exit(0);
    }
    char byte = 0;
    ASSERT_EQ(read(ready[0], &byte, 1), 1);
    const std::string journal = readFile(library_.path() + "-journal");
    const std::string database = readFile(library_.path());
    ASSERT_NE(journal.front(), '\0');

    const ReportedBuild build(library_);

    waitpid(writer, nullptr, 0);
    EXPECT_EQ(build.of(Pass::CameraRoll).code, 8);
    EXPECT_EQ(build.cameraRoll(), Files());
    EXPECT_TRUE(readFile(library_.path()) == database);
    EXPECT_TRUE(readFile(library_.path() + "-journal") == journal);
}

TEST_F(LockedDatabase, LogThatSomebodyElseWritesMeanwhileIsKept)
{
    {
        const Writer writer(library_.path());
        writer.execute("pragma journal_mode = wal");
    }
    ASSERT_FALSE(std::filesystem::exists(library_.path() + "-wal"));
    const std::string database = readFile(library_.path());
    {
        DatabaseVisit visit(QString::fromStdString(library_.path()), {"select 1 from ZASSET", {}},
                            Patience::None);
        ASSERT_TRUE(visit.nextRow());
        const Writer writer(library_.path());
        writer.execute("update ZASSET set ZFILENAME = 'IMG_0002.JPG'");
    }
    EXPECT_TRUE(readFile(library_.path()) == database);
    EXPECT_GT(std::filesystem::file_size(library_.path() + "-wal"), 0U);
    EXPECT_EQ(ReportedBuild(library_).cameraRoll(), Files{"IMG_0002.JPG"});
}

TEST_F(LockedDatabase, SmallCommitsOfSomebodyElseLeaveEveryCatalogueWhole)
{
    constexpr int builds = 40;
    const Writer writer(library_.path());
    const Meanwhile commits([&] {
        writer.execute("begin immediate; update ZGENERICALBUM set Z_OPT = ifnull(Z_OPT, 0) + 1; "
                       "commit");
    });
    for (int i = 0; i < builds; ++i) {
        const ReportedBuild build(library_);
        ASSERT_TRUE(build.report.isComplete()) << i << ": " << build.report.firstStopped()->text;
        ASSERT_EQ(build.cameraRoll(), Files{"IMG_0001.JPG"}) << i;
    }
}
