// Documents and tables for machines keep their form, whatever a database holds.
#include "support/csv_reader.h"
#include "support/json_schema.h"
#include "support/multiplying_library.h"
#include "support/run_tool.h"
#include "support/two_snapshots.h"
#include "text/printable.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cmath>
#include <limits>
#include <memory>
#include <sstream>
#include <string>

using namespace iosphoto::test;
using iosphoto::tool::isUtf8;
using nlohmann::json;

namespace {

constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t smallest = std::numeric_limits<std::int64_t>::min();

const std::string hostileTexts[] = {
    "not UTF-8 \xFF\xC3.JPG",
    "overlong \xC0\xAF and a surrogate \xED\xA0\x80",
    "two\nlines\r\n",
    "\u202Ebackwards\u202C \u200F",
    "\U0001F468\u200D\U0001F469\u200D\U0001F467",
    "=1+1,\"quoted\";\t\x01",
    "",
};

const Value hostileNumbers[] = {-1,
                                0,
                                largest,
                                smallest,
                                std::int64_t(123456789012345),
                                3e9,
                                -4e9,
                                1e300,
                                -1e300,
                                HUGE_VAL,
                                -HUGE_VAL,
                                std::nan(""),
                                nullptr,
                                "text",
                                "1e5",
                                Blob{"\xFF"}};

constexpr const char *textColumns[] = {"ZFILENAME",      "ZDIRECTORY",
                                       "ZUUID",          "ZORIGINALFILENAME",
                                       "ZAVALANCHEUUID", "ZUNIFORMTYPEIDENTIFIER"};
constexpr const char *numberColumns[] = {
    "ZDATECREATED", "ZMODIFICATIONDATE",  "ZADDEDDATE",      "ZTRASHEDDATE",
    "ZDURATION",    "ZORIGINALFILESIZE",  "ZWIDTH",          "ZHEIGHT",
    "ZKINDSUBTYPE", "ZAVALANCHEPICKTYPE", "ZTHUMBNAILINDEX", "ZFAVORITE",
    "ZHIDDEN",      "ZHASADJUSTMENTS"};

/// Puts each hostile value into each column of an asset of its own.
void fillWithHostileValues(LibraryBuilder &library)
{
    const AlbumRow trip = library.album("Trip");
    for (const std::string &text : hostileTexts) {
        library.album(text).set("ZUUID", text + "album");
        for (const char *column : textColumns)
            library.asset("A.JPG").in(trip).set(column, text);
    }
    for (const Value &number : hostileNumbers)
        for (const char *column : numberColumns) {
            library.asset("A.JPG").in(trip).set(column, number);
            library.asset("T.MOV").video().trashedAt(TwoSnapshots::justNow()).set(column, number);
        }
}

} // namespace

class HostileLibrary : public testing::TestWithParam<const char *>
{
protected:
    /// The same for all commands, which only read it.
    static void SetUpTestSuite()
    {
        phone_ = std::make_unique<TwoSnapshots>();
        phone_->before.execute("begin");
        phone_->after.execute("begin");
        fillWithHostileValues(phone_->before);
        fillWithHostileValues(phone_->after);
        phone_->before.execute("commit; delete from ZASSET where Z_PK % 3 = 0");
        phone_->after.execute("update ZASSET set ZFILENAME = ZFILENAME || x'0AFF' "
                              "where Z_PK % 5 = 0; commit");
        phone_->after.execute("pragma journal_mode = wal; pragma wal_autocheckpoint = 0");
        phone_->after.execute("delete from ZASSET where Z_PK % 7 = 0");
    }
    static void TearDownTestSuite() { phone_.reset(); }

    static std::string command() { return GetParam(); }

    /// What the command prints, which has to be UTF-8.
    static std::string printed(const char *format)
    {
        const bool isOfTwo = command() == "diff";
        const ToolRun run = isOfTwo ? phone_->diff({format})
                                    : runTool({command(), phone_->after.path(), format, "--quiet",
                                               "--ios", "15.0", "--product", "iPhone14,2"});
        EXPECT_EQ(run.status, isOfTwo ? 1 : 0) << run.error;
        EXPECT_TRUE(isUtf8(run.out));
        return run.out;
    }

    static std::unique_ptr<TwoSnapshots> phone_;
};

std::unique_ptr<TwoSnapshots> HostileLibrary::phone_;

TEST_P(HostileLibrary, GivesADocumentThatFitsItsSchema)
{
    const json document = json::parse(printed("--json"));
    EXPECT_EQ(schemaComplaints(GetParam(), document), "");
}

class HostileLibraryRows : public HostileLibrary
{
};

TEST_P(HostileLibraryRows, FitTheirSchema)
{
    std::istringstream lines(printed("--jsonl"));
    int count = 0;
    for (std::string line; std::getline(lines, line); ++count)
        ASSERT_EQ(schemaComplaints(command() + "-line", json::parse(line)), "") << line;
    EXPECT_GE(count, 8);
}

TEST_P(HostileLibraryRows, HaveTimesInUtcInCsv)
{
    const std::vector<CsvRow> rows = readCsv(printed("--csv"));
    int times = 0;
    for (const CsvRow &row : rows)
        for (const char *key : {"created", "modified", "added", "trashed", "goes", "firstCreated",
                                "lastCreated", "before.created", "after.modified"}) {
            const auto cell = row.find(key);
            if (cell == row.end() || cell->second.empty())
                continue;
            ++times;
            EXPECT_THAT(cell->second, testing::MatchesRegex("....-..-..T..:..:..Z")) << key;
        }
    EXPECT_GE(times, 8);
    EXPECT_GE(rows.size(), 8U);
}

INSTANTIATE_TEST_SUITE_P(Commands, HostileLibrary,
                         testing::Values("photos", "albums", "info", "diff"));
INSTANTIATE_TEST_SUITE_P(Commands, HostileLibraryRows, testing::Values("photos", "albums", "diff"));

TEST(ToolHostileLibrary, RowsThatMultiplyAreBoundedByTheirCount)
{
    LibraryBuilder library(ios18);
    multiplyPhoto(library, 300);
    const ToolRun run = runTool({"photos", library.path(), "--jsonl", "--quiet"});
    EXPECT_EQ(std::count(run.out.begin(), run.out.end(), '\n'), 1); // one photo, in many records
    EXPECT_EQ(run.error, "iosphoto: the tables of '" + library.path() +
                             "' make more than 7144 rows of its photos, as only damage or intent "
                             "does, and photos are missing here; copy it from the device or the "
                             "backup again, its -wal with it\n");
    EXPECT_EQ(run.status, 1);
}
