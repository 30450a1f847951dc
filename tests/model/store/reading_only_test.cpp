#include "model/store/reading_only.h"

#include "model/store/untrusted_database.h"
#include "support/database.h"
#include "support/library_builder.h"

#include <gtest/gtest.h>

#include <utility>

using namespace iosphoto;
using namespace iosphoto::test;

namespace {

class ReadingOnlyConnection : public testing::TestWithParam<const char *>
{
protected:
    ReadingOnlyConnection() : library_(ios15)
    {
        library_.asset("IMG_0001.JPG");
        library_.execute("create view shown as select * from ZASSET");
        library_.execute("create virtual table box using rtree(id, low, high)");
        connection_ = openDatabase(library_.path());
        EXPECT_EQ(distrust(connection_.get()), SQLITE_OK);
        readingOnly_.apply(connection_.get());
    }

    int execute(const char *sql) const
    {
        return sqlite3_exec(connection_.get(), sql, nullptr, nullptr, nullptr);
    }

    LibraryBuilder library_;
    ReadingOnly readingOnly_;
    SqliteConnection connection_;
};

using AllowedStatement = ReadingOnlyConnection;
using DeniedStatement = ReadingOnlyConnection;

} // namespace

TEST_P(AllowedStatement, Runs)
{
    EXPECT_EQ(execute(GetParam()), SQLITE_OK) << sqlite3_errmsg(connection_.get());
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, AllowedStatement,
    testing::Values("select count(*) from ZASSET where ZUUID like '00000000-%'",
                    "select a.Z_ENT from (select * from Z_PRIMARYKEY) a left join ZASSET b on "
                    "a.Z_ENT = b.Z_ENT order by Z_NAME desc",
                    "with recursive n(i) as (select 1 union select i + 1 from n limit 5) "
                    "select i from n"));

TEST_P(DeniedStatement, DoesNotRun)
{
    EXPECT_NE(execute(GetParam()), SQLITE_OK);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, DeniedStatement,
    testing::Values("insert into ZASSET (Z_PK) values (2)", "update ZASSET set Z_OPT = 1",
                    "delete from ZASSET", "drop table ZASSET", "create table other (x)",
                    "create temp table other (x)", "create index other on ZASSET (Z_OPT)",
                    "attach ':memory:' as other", "vacuum into 'other.sqlite'", "begin", "reindex",
                    "analyze", "pragma journal_mode = wal", "pragma user_version = 5",
                    "pragma writable_schema = on", "select load_extension('other')",
                    "select * from shown", "select * from box",
                    "create virtual table other using fts5(x)"));

class Distrust : public testing::Test
{
protected:
    Distrust()
    {
        for (const auto &[option, value] : settings_)
            sqlite3_db_config(connection_.get(), option, 1 - value, nullptr);
        EXPECT_EQ(distrust(connection_.get()), SQLITE_OK);
    }

    const std::pair<int, int> settings_[5] = {{SQLITE_DBCONFIG_DEFENSIVE, 1},
                                              {SQLITE_DBCONFIG_ENABLE_LOAD_EXTENSION, 0},
                                              {SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0},
                                              {SQLITE_DBCONFIG_ENABLE_TRIGGER, 0},
                                              {SQLITE_DBCONFIG_ENABLE_VIEW, 0}};
    SqliteConnection connection_ = openDatabase(":memory:");
};

TEST_F(Distrust, SwitchesOffWhatADatabaseCouldRunWhateverTheHostSwitchedOn)
{
    for (const auto &[option, value] : settings_) {
        int found = -1;
        sqlite3_db_config(connection_.get(), option, -1, &found);
        EXPECT_EQ(found, value) << option;
    }
}

TEST_F(Distrust, BoundsValuesAndStatementsAndStartsNoThread)
{
    EXPECT_EQ(sqlite3_limit(connection_.get(), SQLITE_LIMIT_LENGTH, -1), 64 * 1024 * 1024);
    EXPECT_EQ(sqlite3_limit(connection_.get(), SQLITE_LIMIT_SQL_LENGTH, -1), 1024 * 1024);
    EXPECT_EQ(sqlite3_limit(connection_.get(), SQLITE_LIMIT_WORKER_THREADS, -1), 0);
}
