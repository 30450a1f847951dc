// What all documents of a library begin with.
#include "support/case_name.h"
#include "support/json_schema.h"
#include "support/query.h"
#include "support/run_on.h"
#include "support/source_shapes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

using namespace iosphoto::test;
using nlohmann::json;
using testing::StartsWith;

namespace {

constexpr const char *keys[] = {"source",          "sourceBytes",
                                "sourceKind",      "isArchive",
                                "database",        "databaseBytes",
                                "iosVersion",      "iosVersionFrom",
                                "build",           "productType",
                                "productTypeFrom", "schema",
                                "modelVersion",    "asOf",
                                "assumedTimeZone", "leftOut",
                                "leftOutByReason", "albumsLeftOutByReason",
                                "isComplete",      "missingColumns",
                                "unknownFields",   "unknownReasons"};

/// The keys of the head alone.
json headOf(const json &document)
{
    json head;
    for (const char *key : keys)
        head[key] = document.at(key);
    return head;
}

json documentOf(const std::vector<std::string> &arguments, int status = 0)
{
    const ToolRun run = runTool(arguments);
    EXPECT_EQ(run.status, status) << run.error;
    return json::parse(run.out);
}

/// As query() gives a value.
std::string cellOf(const json &value)
{
    if (value.is_boolean())
        return value.get<bool>() ? "1" : "0";
    return value.is_string() ? value.get<std::string>() : value.dump();
}

json headOfInfo(const LibraryBuilder &library, const std::vector<std::string> &arguments = {})
{
    std::vector<std::string> all = {"--json"};
    all.insert(all.end(), arguments.begin(), arguments.end());
    return headOf(json::parse(runOn(library, "info", all).out));
}

} // namespace

class LibraryHead : public testing::TestWithParam<SourceShape>
{
protected:
    json document(const char *command) const
    {
        return documentOf({command, source_.path(), "--json"});
    }

    ShapedSource source_{GetParam()};
};

TEST_P(LibraryHead, IsTheSameInAllDocuments)
{
    json head = headOf(document("info"));
    EXPECT_EQ(schemaComplaints("library", head), "");
    EXPECT_EQ(headOf(document("photos")), head);
    EXPECT_EQ(headOf(document("albums")), head);
    head["asOf"] = nullptr; // two are compared as of no moment
    const json difference = documentOf({"diff", source_.path(), source_.path(), "--json"});
    EXPECT_EQ(difference["a"], head);
    EXPECT_EQ(difference["b"], head);
}

TEST_P(LibraryHead, SaysWhatTheSourceIs)
{
    const json head = headOf(document("info"));
    EXPECT_EQ(head["source"], source_.path());
    EXPECT_EQ(head["sourceKind"], GetParam().sourceKind);
    EXPECT_EQ(head["isArchive"], GetParam().isArchive);
    EXPECT_THAT(head["database"].get<std::string>(), StartsWith(source_.path()));
    EXPECT_EQ(head["schema"], "iOS 15 to 17");
    EXPECT_EQ(head["modelVersion"], 17311);
    EXPECT_EQ(head["build"], GetParam().sourceKind == std::string("backup") ? "21E236" : "21E219");
    EXPECT_EQ(head["isComplete"], true);
}

TEST_P(LibraryHead, IsTheTableOfASqliteOutputToo)
{
    const std::string file = (source_.folder() / "out.db").string();
    ASSERT_EQ(runTool({"albums", source_.path(), "--sqlite", file}).status, 0);
    const json head = headOf(document("albums"));
    for (const auto &[key, value] : head.items()) {
        const std::string cell = query(file, "select \"" + key + "\" from library").at(0).at(0);
        if (value.is_object()) // whose members stand in the order of the schema
            EXPECT_EQ(json::parse(cell), value) << key;
        else
            EXPECT_EQ(cell, cellOf(value)) << key;
    }
    EXPECT_EQ(query(file, "select typeof(modelVersion), typeof(leftOut) from library").at(0),
              (std::vector<std::string>{"integer", "integer"}));
    EXPECT_EQ(query(file, "select * from library").at(0).size(), head.size());
}

INSTANTIATE_TEST_SUITE_P(Sources, LibraryHead, testing::ValuesIn(allSourceShapes()), NameOfCase());

TEST(LibraryHeadOfADatabase, IsNullForWhatItDoesNotSay)
{
    const LibraryBuilder library(ios15);
    json head = headOfInfo(library);
    for (const char *const key : {"leftOutByReason", "albumsLeftOutByReason"})
        head.erase(key); // of which the tests of the account are
    EXPECT_EQ(head, (json{{"source", library.path()},
                          {"sourceBytes", nullptr},
                          {"sourceKind", "database"},
                          {"isArchive", false},
                          {"database", library.path()},
                          {"databaseBytes", nullptr},
                          {"iosVersion", "15.0"},
                          {"iosVersionFrom", "user"},
                          {"build", nullptr},
                          {"productType", "iPhone14,2"},
                          {"productTypeFrom", "user"},
                          {"schema", "iOS 15 to 17"},
                          {"modelVersion", nullptr},
                          {"asOf", "2020-01-10T00:00:00Z"},
                          {"assumedTimeZone", nullptr},
                          {"leftOut", 0},
                          {"isComplete", true},
                          {"missingColumns", json::array()},
                          {"unknownReasons", json::array()},
                          {"unknownFields", json::array()}}));
}

TEST(LibraryHeadOfADatabase, CountsWhatTheTrashLeavesOut)
{
    LibraryBuilder library(ios15);
    for (const int age : {29, 30, 31})
        library.asset(std::to_string(age) + ".JPG").trashedAt(readingTime - age * days);
    EXPECT_EQ(headOfInfo(library)["leftOut"], 2);
}
