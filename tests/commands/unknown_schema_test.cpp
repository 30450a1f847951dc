// A database that no known schema fits is still one of photos, and info says what it has instead.
#include "support/database.h"
#include "support/json_schema.h"
#include "support/run_on.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <tuple>

using namespace iosphoto::test;
using nlohmann::json;
using testing::Contains;
using testing::HasSubstr;
using testing::Not;

class EssentialTableOf : public testing::TestWithParam<std::tuple<Schema, const char *>>
{
};

TEST_P(EssentialTableOf, ALibraryIsNamedWhereItIsMissing)
{
    const auto &[schema, table] = GetParam();
    LibraryBuilder library(schema);
    library.asset("A.JPG");
    library.execute(std::string("drop table ") + table);
    const ToolRun run = runTool({"photos", library.path()});
    EXPECT_THAT(run.error, HasSubstr("' is a photo database of no known schema: no iOS from 6 to "
                                     "18 has these tables and columns (no such table: " +
                                     std::string(table) + ")"));
    EXPECT_EQ(run.status, 5);
}

TEST_P(EssentialTableOf, ALibraryKeepsItFromBeingPassedOver)
{
    const auto &[schema, table] = GetParam();
    LibraryBuilder library(schema);
    library.execute(std::string("drop table ") + table);
    const TemporaryFolder folder;
    std::filesystem::copy_file(library.path(), folder / "Other.sqlite");
    const ToolRun run = runTool({"photos", folder.path().string()});
    EXPECT_THAT(run.error, HasSubstr("no such table: " + std::string(table)));
    EXPECT_EQ(run.status, 5);
}

INSTANTIATE_TEST_SUITE_P(Tables, EssentialTableOf,
                         testing::Combine(testing::Values(ios15, ios18),
                                          testing::Values("Z_PRIMARYKEY", "ZGENERICALBUM",
                                                          "ZADDITIONALASSETATTRIBUTES")),
                         [](const auto &test) {
                             return std::string(std::get<0>(test.param).name) + '_' +
                                    std::get<1>(test.param);
                         });

TEST(AssetTable, WithoutOthersOrFilesIsOfNoPhotoLibrary)
{
    const TemporaryFolder folder;
    const std::string file = (folder / "Other.sqlite").string();
    execute(openDatabase(file), "create table ZASSET (Z_PK, ZUUID)");
    EXPECT_EQ(runTool({"info", file}).status, 4);
}

class UnknownSchemaOf : public testing::Test
{
protected:
    UnknownSchemaOf()
    {
        library_.madeBy(270008501);
        library_.album("Trip to the sea");
        library_.asset("A.JPG");
        library_.execute("alter table ZASSET drop column ZUUID;"
                         "alter table ZASSET drop column ZHIDDEN;"
                         "alter table ZASSET rename column ZFILENAME to ZNAMEOFFILE;"
                         "drop table Z_30ASSETS");
    }

    json document(const std::string &option = "--json") const
    {
        const ToolRun run = runTool({"info", library_.path(), option});
        EXPECT_EQ(run.status, 5);
        return json::parse(run.out);
    }

    LibraryBuilder library_{ios18};
};

TEST_F(UnknownSchemaOf, ALibraryIsPrintedForItsMakers)
{
    const ToolRun run = runTool({"info", library_.path()});
    EXPECT_THAT(run.out, HasSubstr("Schema   unknown\nModel    270008501\nNearest  iOS 18\n"));
    for (const char *const name : {"ZASSET.ZUUID", "ZASSET.ZHIDDEN", "ZASSET.ZFILENAME",
                                   "Z_30ASSETS", "ZNAMEOFFILE", "ZGENERICALBUM"})
        EXPECT_THAT(run.out, HasSubstr(name));
    for (const char *const text : {"Trip", "A.JPG", "Photos.sqlite"})
        EXPECT_THAT(run.out, Not(HasSubstr(text)));
    EXPECT_THAT(run.error, HasSubstr("and send what that prints to the makers\n"));
    EXPECT_EQ(run.status, 5);
}

TEST_F(UnknownSchemaOf, ALibraryIsADocument)
{
    const json document = this->document();
    EXPECT_EQ(schemaComplaints("unknown-schema", document), "");
    EXPECT_EQ(document["modelVersion"], 270008501);
    EXPECT_EQ(document["nearestSchema"], "iOS 18");
    EXPECT_THAT(document["missing"].get<std::vector<std::string>>(),
                testing::UnorderedElementsAre("ZASSET.ZUUID", "ZASSET.ZHIDDEN", "ZASSET.ZFILENAME",
                                              "Z_30ASSETS"));
    const json &tables = document["tables"];
    EXPECT_THAT(tables, Contains(testing::Truly([](const json &table) {
                    return table["name"] == "Z_PRIMARYKEY" &&
                           table["columns"] == json({"Z_ENT", "Z_NAME", "Z_SUPER", "Z_MAX"});
                })));
    EXPECT_EQ(this->document("--jsonl"), document);
}

TEST_F(UnknownSchemaOf, ALibraryIsNearTheOneOfWhichTheLeastIsMissing)
{
    LibraryBuilder library(ios11);
    library.execute("alter table ZGENERICASSET drop column ZUUID");
    const json document = json::parse(runTool({"info", library.path(), "--json"}).out);
    EXPECT_EQ(document["nearestSchema"], "iOS 11 to 13");
    EXPECT_EQ(document["missing"], json({"ZGENERICASSET.ZUUID"}));
}

TEST_F(UnknownSchemaOf, ALibraryIsNearTheNewestOfThoseThatMissATable)
{
    LibraryBuilder library(ios18);
    library.execute("drop table ZADDITIONALASSETATTRIBUTES");
    const json document = json::parse(runTool({"info", library.path(), "--json"}).out);
    EXPECT_EQ(document["nearestSchema"], "iOS 18");
    EXPECT_EQ(document["missing"], json({"ZADDITIONALASSETATTRIBUTES"}));
}

TEST_F(UnknownSchemaOf, ALibraryWithoutEntitiesIsNearNone)
{
    LibraryBuilder library(ios18);
    library.execute("drop table Z_PRIMARYKEY");
    const json document = json::parse(runTool({"info", library.path(), "--json"}).out);
    EXPECT_EQ(schemaComplaints("unknown-schema", document), "");
    EXPECT_EQ(document["nearestSchema"], nullptr);
    EXPECT_EQ(document["missing"], json({"Z_PRIMARYKEY"}));
}
