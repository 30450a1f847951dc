// Databases that somebody made to harm: with something else where tables should be.
#include "support/case_name.h"
#include "support/multiplying_library.h"
#include "support/report.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <sys/stat.h>

using namespace iosphoto;
using namespace iosphoto::test;

namespace {

struct NoTable
{
    const char *label;
    const char *change;
    Pass::Code pass; ///< that reads nothing, as the first
    const char *table;

    std::string name() const { return label; }
};

std::ostream &operator<<(std::ostream &stream, const NoTable &table)
{
    return stream << table.label;
}

constexpr NoTable noTables[] = {
    {"EndlessAssets",
     "drop table ZASSET; create view ZASSET as with recursive endless(Z_PK) as (select 1 union all "
     "select Z_PK + 1 from endless) select Z_PK, 3 Z_ENT from endless",
     Pass::CameraRoll, "ZASSET"},
    {"EndlessEntities",
     "drop table Z_PRIMARYKEY; create view Z_PRIMARYKEY as with recursive endless(Z_ENT) as "
     "(select 1 union all select Z_ENT + 1 from endless) select Z_ENT, 'Asset' Z_NAME, 0 Z_SUPER "
     "from endless",
     Pass::AssetEntity, "Z_PRIMARYKEY"},
    {"ViewOfTheAlbums",
     "alter table ZGENERICALBUM rename to real; create view ZGENERICALBUM as select * from real",
     Pass::CameraRoll, "ZGENERICALBUM"},
    {"VirtualTable",
     "drop table Z_27ASSETS; create virtual table Z_27ASSETS using rtree(Z_27ALBUMS, Z_3ASSETS, "
     "Z_FOK_3ASSETS)",
     Pass::CameraRoll, "Z_27ASSETS"},
    {"ComputedColumn",
     "alter table ZASSET drop column ZWIDTH; "
     "alter table ZASSET add column ZWIDTH as (length(hex(zeroblob(10000000))))",
     Pass::CameraRoll, "ZASSET"},
};

} // namespace

class NoTableIsRead : public testing::TestWithParam<NoTable>
{
};

TEST_P(NoTableIsRead, AndTheReportSaysWhy)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG").in(library.album("Trip"));
    ASSERT_EQ(ReportedBuild(library).cameraRoll(), Files{"IMG_0001.JPG"});
    library.execute("pragma legacy_alter_table = on");
    library.execute(GetParam().change);
    library.close();

    const ReportedBuild build(library);

    EXPECT_EQ(build.result, 0);
    EXPECT_EQ(build.cameraRoll(), Files());
    const CPassReport *const stop = build.report.firstStopped();
    ASSERT_NE(stop, nullptr);
    EXPECT_EQ(stop->pass, GetParam().pass);
    EXPECT_EQ(stop->code, 23);
    EXPECT_EQ(stop->rows, 0);
    EXPECT_EQ(stop->text, GetParam().table + std::string(" is a view, a virtual table, or has a "
                                                         "computed column"));
}

INSTANTIATE_TEST_SUITE_P(Kinds, NoTableIsRead, testing::ValuesIn(noTables), NameOfCase());

TEST(UntrustedDatabase, WhatNoStatementReadsDoesNotMatter)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG");
    library.execute("create view OTHER as select * from ZASSET");
    library.execute("create virtual table Z_RT_Asset_boundedByRect using rtree(id, low, high)");
    library.execute(
        "create trigger ZT after update on ZASSET begin select no_such_function(); end");
    library.execute("create table COMPUTED (x, y as (x + 1))");
    library.execute("create index BY_NAME on ZASSET (lower(ZFILENAME)) where ZFILENAME > ''");
    const ReportedBuild build(library);
    EXPECT_TRUE(build.report.isComplete()) << build.report.firstStopped()->text;
    EXPECT_EQ(build.cameraRoll(), Files{"IMG_0001.JPG"});
}

TEST(UntrustedDatabase, ViewThatIsNoTableOfTheStatementIsNotBlamed)
{
    LibraryBuilder library(ios15);
    library.execute("create view ZTITLE as select 1");
    const ReportedBuild build(library.path(), "13.7", "iPhone14,2");
    EXPECT_EQ(build.report.firstStopped()->code, 1);
    EXPECT_EQ(build.report.firstStopped()->text, "no such table: ZGENERICASSET");
}

TEST(UntrustedDatabase, HoleInALogAllowsNoMoreWork)
{
    LibraryBuilder library(ios18);
    multiplyPhoto(library, 2500);
    library.close();
    writeFile(library.path() + "-wal", "");
    std::filesystem::resize_file(library.path() + "-wal", 100'000'000'000);
    EXPECT_EQ(ReportedBuild(library).of(Pass::CameraRoll).code, 9);
}

TEST(UntrustedDatabase, PassThatWouldRunOnAndOnIsStopped)
{
    LibraryBuilder library(ios18);
    multiplyPhoto(library, 2500); // some six million rows
    const ReportedBuild build(library);
    EXPECT_EQ(build.result, 0);
    EXPECT_EQ(build.of(Pass::CameraRoll).code, 9);
    EXPECT_THAT(build.of(Pass::CameraRoll).text, testing::StartsWith("it took "));
    EXPECT_LT(build.of(Pass::CameraRoll).rows, 2500 * 2500);
    EXPECT_EQ(build.of(Pass::AlbumContents).code, 0);
}

TEST(UntrustedDatabase, RowsThatMultiplyDoNotFillTheMemory)
{
    LibraryBuilder library(ios18);
    multiplyPhoto(library, 600);
    library.execute("update ZASSET set ZFILENAME = hex(zeroblob(10000))");
    sqlite3_memory_highwater(1);
    const ReportedBuild build(library);
    EXPECT_EQ(build.of(Pass::CameraRoll).code, 9);
    EXPECT_LT(sqlite3_memory_highwater(0), 400 * 1000 * 1000); // of 7,200 million
}

TEST(UntrustedDatabase, ValueBeyondAllMeasureEndsThePass)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG").set("ZDIRECTORY", std::string(65 * 1024 * 1024, 'x'));
    const ReportedBuild build(library);
    EXPECT_EQ(build.result, 0);
    EXPECT_EQ(build.of(Pass::CameraRoll).code, 18);
}

TEST(UntrustedDatabase, PipeInPlaceOfAJournalIsNotWaitedFor)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG");
    ASSERT_EQ(mkfifo((library.path() + "-journal").c_str(), 0600), 0);
    EXPECT_EQ(ReportedBuild(library).of(Pass::CameraRoll).code, 8);
}
