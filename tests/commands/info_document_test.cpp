// info --json
#include "support/backup_builder.h"
#include "support/case_name.h"
#include "support/damage.h"
#include "support/json_schema.h"
#include "support/run_on.h"
#include "support/source_shapes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

using namespace iosphoto::test;
using nlohmann::json;
using testing::IsEmpty;

class InfoDocumentOf : public testing::TestWithParam<SourceShape>
{
};

TEST_P(InfoDocumentOf, FitsItsSchemaWhichFixesEachKey)
{
    const ShapedSource source(GetParam());
    const json document = json::parse(runTool({"info", source.path(), "--json"}).out);
    EXPECT_EQ(schemaComplaints("info", document), "");
    EXPECT_THAT(freeKeys("info", document), IsEmpty());
    EXPECT_EQ(document["log"].is_null(), !GetParam().hasLog);
}

INSTANTIATE_TEST_SUITE_P(Sources, InfoDocumentOf, testing::ValuesIn(allSourceShapes()),
                         NameOfCase());

class InfoDocument : public testing::Test
{
protected:
    json document() const { return json::parse(runOn(library_, "info", {"--json"}).out); }

    /// The kinds of which there are some.
    json counts() const
    {
        const json document = this->document();
        json counts;
        for (const json &count : document["counts"])
            if (count["count"] != 0)
                counts[count["kind"].get<std::string>()] = {count["count"], count["bytes"]};
        return counts;
    }

    LibraryBuilder library_{ios15};
};

TEST_F(InfoDocument, SaysHowMuchThereIs)
{
    library_.asset("1.JPG");
    library_.asset("2.JPG").set("ZORIGINALFILESIZE", 5);
    const json info = document();
    EXPECT_EQ(info["isOfMac"], false);
    EXPECT_EQ(info["albumCount"], 3);
    EXPECT_EQ(info["photoCount"], 2);
    EXPECT_EQ(info["bytes"], 1005);
    EXPECT_EQ(info["firstCreated"], "2020-01-04T10:40:00Z");
    EXPECT_EQ(info["lastCreated"], "2020-01-05T10:40:00Z");
}

TEST_F(InfoDocument, CountsEachKindThatPhotosMayBeAskedFor)
{
    library_.asset("1.JPG").set("ZFAVORITE", 1);
    library_.asset("2.MOV").video().set("ZORIGINALFILESIZE", 5);
    library_.asset("3.MOV").video().set("ZKINDSUBTYPE", 101);
    EXPECT_EQ(counts(), (json{{"photo", {1, 1000}},
                              {"video", {2, 1005}},
                              {"slo-mo", {1, 1000}},
                              {"favorite", {1, 1000}}}));
    const json document = this->document();
    ASSERT_EQ(document["counts"].size(), 18U);
    for (const json &count : document["counts"]) {
        const ToolRun photos =
            runOn(library_, "photos", {"--json", "--quiet", "--kind", count["kind"]});
        EXPECT_EQ(json::parse(photos.out)["photos"].size(), count["count"]) << count;
    }
}

TEST_F(InfoDocument, ListsTheKindsInTheOrderOfTheSchema)
{
    const json document = this->document();
    json kinds = json::array();
    for (const json &count : document["counts"])
        kinds.push_back(count["kind"]);
    EXPECT_EQ(kinds, schemaDocument("info")["definitions"]["count"]["properties"]["kind"]["enum"]);
}

TEST_F(InfoDocument, OfAnEmptyLibraryHasNoTimes)
{
    EXPECT_EQ(schemaComplaints("info", document()), "");
    EXPECT_EQ(document()["firstCreated"], nullptr);
    EXPECT_EQ(document()["lastCreated"], nullptr);
}

TEST_F(InfoDocument, OfADamagedLibraryIsNotComplete)
{
    library_.asset("1.JPG").in(library_.album("Trip"));
    damageTable(library_, "Z_27ASSETS");
    const ToolRun run = runOn(library_, "info", {"--json"});
    const json document = json::parse(run.out);
    EXPECT_EQ(schemaComplaints("info", document), "");
    EXPECT_EQ(document["isComplete"], false);
    EXPECT_EQ(run.status, 1);
}

TEST(ToolInfoLines, AreTheDocumentInOneLine)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG");
    const ToolRun line = runOn(library, "info", {"--jsonl"});
    EXPECT_EQ(line.out.find('\n'), line.out.size() - 1);
    EXPECT_EQ(nlohmann::json::parse(line.out),
              nlohmann::json::parse(runOn(library, "info", {"--json"}).out));
}

class InfoOfABackup : public testing::Test
{
protected:
    InfoOfABackup() { library_.asset("1.JPG"); }

    ToolRun info(const BackupOptions &options, const std::string &format = "--json")
    {
        std::filesystem::remove_all(folder_ / "backup");
        writeBackup(folder_ / "backup", library_, options);
        return runTool({"info", (folder_ / "backup").string(), "--ios", "15.0", format});
    }

    LibraryBuilder library_{ios15};
    TemporaryFolder folder_;
};

TEST_F(InfoOfABackup, NamesTheDeviceAndItsSerialNumber)
{
    const json document = json::parse(info({}).out);
    EXPECT_EQ(document["deviceName"], "Somebody's");
    EXPECT_EQ(document["serialNumber"], "F2LXK0ABCD");
    EXPECT_THAT(info({}, "--quiet").out,
                testing::HasSubstr("\nName         Somebody's\nSerial       F2LXK0ABCD\n"));
}

TEST_F(InfoOfABackup, TakesThemFromManifestWhereInfoIsMissing)
{
    info({});
    std::filesystem::remove(folder_ / "backup/Info.plist");
    const json document =
        json::parse(runTool({"info", (folder_ / "backup").string(), "--json"}).out);
    EXPECT_EQ(document["deviceName"], "Somebody's");
    EXPECT_EQ(document["serialNumber"], "F2LXK0ABCD");
}

TEST_F(InfoOfABackup, IsAloneInNamingThem)
{
    info({});
    for (const char *const command : {"albums", "photos", "statements"})
        for (const char *const format : {"--json", "--quiet"}) {
            const ToolRun run = runTool({command, (folder_ / "backup").string(), format});
            EXPECT_THAT(run.out + run.error,
                        testing::Not(testing::ContainsRegex("Somebody|F2LXK0ABCD")))
                << command;
        }
}

TEST_F(InfoDocument, KnowsNoNameOfADeviceWithoutABackup)
{
    EXPECT_EQ(document()["deviceName"], nullptr);
    EXPECT_EQ(document()["serialNumber"], nullptr);
}
