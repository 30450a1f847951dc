// photos --where: an expression over the columns of --sqlite, and nothing more.
#include "support/case_name.h"
#include "support/expect_failure.h"
#include "support/query.h"
#include "support/run_on.h"

using namespace iosphoto::test;
using testing::HasSubstr;

namespace {

class Where : public testing::Test
{
protected:
    Where()
    {
        library_.asset("1.JPG").set("ZORIGINALFILESIZE", 5'000'000).set("ZFAVORITE", 1);
        library_.asset("2.MOV").video().set("ZDURATION", 12.5);
        library_.asset("3.JPG").set("ZHIDDEN", 1);
    }

    ToolRun photos(const std::string &where) const
    {
        return runOn(library_, "photos", {"--fields", "fileName", "--where", where});
    }

    LibraryBuilder library_{ios15};
};

const std::string example = "\"fileSize > 10000000 and width > height\"\n";

} // namespace

TEST_F(Where, SelectsAsAQueryOfTheDatabaseDoes)
{
    const std::string file = (library_.folder() / "out.db").string();
    ASSERT_EQ(runOn(library_, "photos", {"--sqlite", file}).status, 0);
    for (const std::string where :
         {"fileSize = 5000000", "fileSize = '5000000'", "duration > 12", "isHidden or isFavorite",
          "fileName like '_.jpg' -- of any case", "created < '2020-01-04T12'", "photos.width > 0",
          "burstUuid is null and uuid glob '*1'", "mediaKind in ('video', 'photo')",
          "strftime('%Y', created) = '2020'"}) {
        std::vector<std::string> names;
        for (const auto &row :
             query(file, "select fileName from photos where " + where + "\norder by id"))
            names.push_back(row.at(0));
        EXPECT_FALSE(names.empty()) << where;
        EXPECT_EQ(photos(where), fileNames(names)) << where;
    }
}

TEST_F(Where, FindsNullWhereTheDatabaseDoesNotTell)
{
    library_.execute("alter table ZASSET drop column ZFAVORITE");
    const ToolRun run = runTool({"photos", library_.path(), "--where", "isFavorite is null",
                                 "--fields", "fileName", "--quiet"});
    EXPECT_EQ(run.out, "fileName\n1.JPG\n2.MOV\n3.JPG\n");
    EXPECT_THAT(run.error, HasSubstr("iosphoto: --where asks for isFavorite, which is unknown and "
                                     "so null in every photo: '" +
                                     library_.path() + "' has no ZASSET.ZFAVORITE\n"));
    EXPECT_EQ(run.status, 1);
}

TEST_F(Where, NamesTheColumnsWhereThereIsNoSuchOne)
{
    const ToolRun run = photos("fileNam = 'x'");
    expectFailure(run, "--where: there is no column 'fileNam'; there are uuid, assetId, ", 2);
    EXPECT_THAT(run.error, HasSubstr("; did you mean 'fileName'?\n"));
    EXPECT_EQ(photos("\"fileNam\" = 'x'"), run);
    expectFailure(photos("id = 1"), "--where: there is no column 'id'; there are uuid, ", 2);
}

TEST_F(Where, SaysOfAMistakeWhatSqliteSays)
{
    expectFailure(photos("width >"),
                  "--where: incomplete input; write an expression such as " + example, 2);
    expectFailure(photos(""), "--where: incomplete input; ", 2);
    expectFailure(photos("count(*) > 1"), "--where: misuse of aggregate ", 2);
    expectFailure(photos("abs(-9223372036854775808)"), "--where: integer overflow; ", 2);
    expectFailure(photos("length(zeroblob(1000000000))"), "--where: string or blob too big; ", 2);
}

TEST_F(Where, EndsWhereItTakesTooMuchWork)
{
    std::string numbers = "2";
    for (int i = 1; i < 60'000; ++i)
        numbers += ",2";
    expectFailure(photos("width in (" + numbers + ")"),
                  "--where: the expression takes too much work for a photo; write a simpler one\n",
                  2);
}

TEST_F(Where, IsCheckedBeforeALibraryIsRead)
{
    expectFailure(runTool({"photos", "/nowhere", "--where", "width >"}), "--where: incomplete", 2);
}

struct Foreign
{
    std::string what;
    std::string text;

    std::string name() const { return what; }
};

class WhereForeign : public testing::TestWithParam<Foreign>
{
};

TEST_P(WhereForeign, IsRefusedInOneLine)
{
    LibraryBuilder library(ios15);
    library.asset("1.JPG");
    expectFailure(runOn(library, "photos", {"--where", GetParam().text}), "--where: ", 2);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, WhereForeign,
    testing::Values(
        Foreign{"query", "uuid in (select uuid from photos)"}, Foreign{"union", "1 union select 1"},
        Foreign{"exists", "exists (select 1)"}, Foreign{"brackets", "1) or (1"},
        Foreign{"statement", "1; drop table photos"}, Foreign{"attach", "1; attach '/tmp/x' as y"},
        Foreign{"limit", "1 limit 1"}, Foreign{"order", "1 order by 1"},
        Foreign{"rowid", "rowid = 1"}, Foreign{"oid", "_rowid_ = 1 or oid = 1"},
        Foreign{"parameter", "width > ?"}, Foreign{"named parameter", "width > :width"},
        Foreign{"extension", "load_extension('x')"}, Foreign{"file", "readfile('/etc/passwd')"},
        Foreign{"comment", "1 /* and nothing else"}, Foreign{"table", "1 in sqlite_master"},
        Foreign{"pragma", "1 in (pragma_page_count)"}),
    NameOfCase());
