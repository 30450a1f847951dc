// A database that somebody else is writing to.
#include "support/meanwhile.h"
#include "support/report.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <chrono>
#include <memory>

using namespace iosphoto;
using namespace iosphoto::test;

namespace {

/// A connection of somebody else's.
class Writer
{
public:
    explicit Writer(const std::string &path)
    {
        sqlite3_open(path.c_str(), &connection_);
        sqlite3_busy_timeout(connection_, 10000);
        execute("pragma synchronous = off");
    }
    ~Writer() { sqlite3_close(connection_); }
    Writer(const Writer &) = delete;
    Writer &operator=(const Writer &) = delete;

    void execute(const char *sql) const
    {
        EXPECT_EQ(sqlite3_exec(connection_, sql, nullptr, nullptr, nullptr), SQLITE_OK) << sql;
    }

private:
    sqlite3 *connection_ = nullptr;
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
