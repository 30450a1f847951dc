#include "support/csv_reader.h"
#include "support/expect_failure.h"
#include "support/json_schema.h"
#include "support/run_on.h"

#include <nlohmann/json.hpp>

#include <sstream>

using namespace iosphoto::test;
using nlohmann::json;
using testing::IsEmpty;

namespace {

/// A library in which every sort of value appears, known and unknown.
class RichLibrary
{
public:
    RichLibrary()
    {
        const AlbumRow trip = library_.album("Trip");
        library_.asset("1.JPG").in(trip).set("ZORIGINALFILENAME", "Before.JPG");
        library_.asset("2.MOV").in(trip).video().set("ZDURATION", 1.5);
        library_.asset("3.JPG").trashedAt(readingTime - days);
        library_.asset("4.JPG").set("ZAVALANCHEPICKTYPE", 16).set("ZAVALANCHEUUID", "burst");
        library_.asset("5.JPG").set("ZUUID", nullptr).set("ZDATECREATED", 1e300);
        library_.asset("6.JPG").set("ZDATECREATED", -2000000000);
    }

    ToolRun run(const std::string &command, const std::vector<std::string> &arguments) const
    {
        return runOn(library_, command, arguments);
    }

private:
    LibraryBuilder library_{ios15};
};

std::vector<json> lines(const std::string &out)
{
    std::vector<json> objects;
    std::istringstream text(out);
    for (std::string line; std::getline(text, line);)
        objects.push_back(json::parse(line));
    return objects;
}

} // namespace

/// The command whose rows are written.
class ToolRows : public testing::TestWithParam<const char *>
{
protected:
    ToolRun run(const std::vector<std::string> &arguments) const
    {
        return library_.run(GetParam(), arguments);
    }

    RichLibrary library_;
};

TEST_P(ToolRows, FitTheSchemaAsADocument)
{
    const ToolRun ran = run({"--json"});
    EXPECT_EQ(schemaComplaints(GetParam(), json::parse(ran.out)), "");
    EXPECT_GE(json::parse(ran.out)[GetParam()].size(), 5U);
    EXPECT_EQ(ran.error, "");
    EXPECT_EQ(ran.status, 0);
}

TEST_P(ToolRows, FitTheSchemaAsLines)
{
    const ToolRun ran = run({"--jsonl"});
    const std::string schema = GetParam() + std::string("-line");
    EXPECT_GE(lines(ran.out).size(), 5U);
    for (const json &line : lines(ran.out))
        EXPECT_EQ(schemaComplaints(schema, line), "") << line;
    EXPECT_EQ(ran.error, "");
    EXPECT_EQ(ran.status, 0);
}

TEST_P(ToolRows, HaveSchemasThatFixEachKey)
{
    EXPECT_THAT(freeKeys(GetParam(), json::parse(run({"--json"}).out)), IsEmpty());
    EXPECT_THAT(freeKeys(GetParam() + std::string("-line"), lines(run({"--jsonl"}).out).front()),
                IsEmpty());
}

TEST_P(ToolRows, LinesSayWhatTheDocumentSays)
{
    const json document = json::parse(run({"--json"}).out);
    std::vector<json> expected;
    for (json row : document[GetParam()]) {
        row["source"] = document["source"];
        row["sourceBytes"] = document["sourceBytes"];
        expected.push_back(row);
    }
    EXPECT_EQ(lines(run({"--jsonl"}).out), expected);
}

TEST_P(ToolRows, CsvSaysWhatTheDocumentSays)
{
    const ToolRun ran = run({"--csv"});
    const json rows = json::parse(run({"--json"}).out)[GetParam()];
    const std::vector<CsvRow> csv = readCsv(ran.out);
    ASSERT_EQ(csv.size(), rows.size());
    for (std::size_t i = 0; i < csv.size(); ++i) {
        ASSERT_EQ(csv[i].size(), rows[i].size());
        for (const auto &[key, value] : rows[i].items()) {
            const std::string &cell = csv[i].at(key);
            if (value.is_string()) {
                EXPECT_EQ(cell, value) << key;
            } else if (value.is_null()) {
                EXPECT_EQ(cell, "") << key;
            } else if (!value.is_array()) {
                EXPECT_EQ(json::parse(cell), value) << key;
            }
        }
    }
    EXPECT_EQ(ran.error, "");
    EXPECT_EQ(ran.status, 0);
}

TEST_P(ToolRows, AreInOneFormatAtMost)
{
    expectFailure(run({"--json", "--csv"}), "--json excludes --csv", 2);
    expectFailure(run({"--json", "--jsonl"}), "--json excludes --jsonl", 2);
    expectFailure(run({"--jsonl", "--sqlite", "out.db"}), "--jsonl excludes --sqlite", 2);
    expectFailure(run({"--fields", "uuid", "--sqlite", "out.db"}), "--sqlite excludes --fields", 2);
    expectFailure(run({"--sqlite", ""}), "--sqlite: names no file", 2);
}

INSTANTIATE_TEST_SUITE_P(Commands, ToolRows, testing::Values("photos", "albums"));

TEST(ToolPhotoRows, AlbumsAreJoinedInCsv)
{
    const auto rows = readCsv(RichLibrary().run("photos", {"--album", "trip", "--csv"}).out);
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows.front().at("albums"), "Camera Roll; Trip");
}
