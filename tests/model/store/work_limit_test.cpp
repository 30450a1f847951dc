#include "model/store/work_limit.h"

#include "support/database.h"
#include "support/library_builder.h"

#include <gtest/gtest.h>

using namespace iosphoto;
using namespace iosphoto::test;

namespace {

/// A limited connection to a sound database of a few pages.
class LimitedConnection
{
public:
    /// @param prepare  is executed on the database before
    explicit LimitedConnection(const std::string &prepare = "") : library_(ios15)
    {
        library_.execute(prepare);
        connection_ = openDatabase(library_.path());
        limit_.apply(connection_.get());
    }

    int execute(const std::string &sql) const
    {
        return sqlite3_exec(connection_.get(), sql.c_str(), nullptr, nullptr, nullptr);
    }
    std::string pages() { return std::to_string(library_.number("pragma page_count")); }
    const WorkLimit &limit() const { return limit_; }

private:
    LibraryBuilder library_;
    WorkLimit limit_;
    SqliteConnection connection_;
};

/// Counts so far, keeping nothing.
std::string counting(const std::string &end)
{
    return "with recursive counted(number) as (select 1 union all select number + 1 from counted "
           "limit " +
           end + ") select max(number) from counted";
}

} // namespace

TEST(WorkLimit, LetsAStatementTakeAHundredTimesWhatIsUsual)
{
    const LimitedConnection connection;
    EXPECT_EQ(connection.execute(counting("1000000")), SQLITE_OK);
    EXPECT_FALSE(connection.limit().isExceeded());
}

TEST(WorkLimit, EndsOneThatWouldNeverEnd)
{
    const LimitedConnection connection;
    EXPECT_EQ(connection.execute(counting("-1")), SQLITE_INTERRUPT);
    EXPECT_TRUE(connection.limit().isExceeded());
    EXPECT_EQ(connection.limit().reason().find("it took 10"), 0U) << connection.limit().reason();
}

TEST(WorkLimit, EndsOneThatFillsTheMemoryAndGoesOn)
{
    const LimitedConnection connection;
    constexpr char hoarding[] =
        "with recursive hoard(number, text) as (select 1, zeroblob(100000) union all "
        "select number + 1, zeroblob(100000) || '' from hoard limit 100000) "
        "select text from hoard order by number desc";
    ASSERT_EQ(connection.execute("pragma temp_store = memory"), SQLITE_OK);
    sqlite3_memory_highwater(1);
    EXPECT_EQ(connection.execute(hoarding), SQLITE_INTERRUPT);
    EXPECT_TRUE(connection.limit().isExceeded());
    EXPECT_LT(sqlite3_memory_highwater(0), 1500 * 1000 * 1000); // of 10,000 million
}

TEST(WorkLimit, DoesNotCountMemoryThatIsTakenInFewSteps)
{
    const LimitedConnection connection;
    EXPECT_EQ(connection.execute("select length(hex(zeroblob(150000000)))"), SQLITE_OK);
    EXPECT_FALSE(connection.limit().isExceeded());
}

TEST(WorkLimit, GoesByThePagesOfTheDatabaseAndItsLog)
{
    constexpr const char *grown = "create table filler as with recursive n(i) as (select 1 union "
                                  "all select i + 1 from n limit 3000) select zeroblob(100) from n";
    for (const std::string pageSize : {"512", "4096", "65536"}) {
        LimitedConnection connection("pragma page_size = " + pageSize + "; vacuum; " + grown);
        EXPECT_NE(connection.limit().reason().find(" of " + connection.pages() + " pages"),
                  std::string::npos)
            << connection.limit().reason();
    }
    const LimitedConnection withLog(std::string("pragma journal_mode = wal; ") + grown);
    const LimitedConnection without(grown);
    EXPECT_NE(withLog.limit().reason(), without.limit().reason());
}
