// The document of --evidence, as commands write it.
#include "support/case_name.h"
#include "support/json_schema.h"
#include "support/run_tool.h"
#include "support/sample_thumb_cache.h"
#include "support/source_shapes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

using namespace iosphoto::test;
using nlohmann::json;
using testing::IsEmpty;

namespace {

/// The evidence that a command keeps, which has to fit its schema.
json evidenceOf(std::vector<std::string> command, int status)
{
    const TemporaryFolder folder;
    const std::string file = (folder / "evidence.json").string();
    command.insert(command.end(), {"--evidence", file});
    EXPECT_EQ(runTool(command).status, status);
    json document = json::parse(readFile(file));
    EXPECT_EQ(schemaComplaints("evidence", document), "");
    EXPECT_EQ(document["exitStatus"], status);
    return document;
}

} // namespace

class EvidenceDocumentOf : public testing::TestWithParam<SourceShape>
{
};

TEST_P(EvidenceDocumentOf, FitsItsSchemaWhichFixesEachKey)
{
    const ShapedSource source(GetParam());
    const json document = evidenceOf({"info", source.path()}, 0);
    EXPECT_GE(document["inputs"].size(), 1U);
    EXPECT_EQ(document["outputs"].size(), 1U);
    EXPECT_THAT(freeKeys("evidence", document), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Sources, EvidenceDocumentOf, testing::ValuesIn(allSourceShapes()),
                         NameOfCase());

class EvidenceDocument : public testing::Test
{
protected:
    std::string path(const char *name) const { return (folder_ / name).string(); }

    TemporaryFolder folder_;
};

TEST_F(EvidenceDocument, OfASourceThatIsNotThereFitsItsSchema)
{
    EXPECT_EQ(evidenceOf({"info", path("none")}, 3)["outputs"], json::array());
}

TEST_F(EvidenceDocument, OfACacheThatIsNotThereFitsItsSchema)
{
    const json document = evidenceOf({"thumb", path("none")}, 3);
    EXPECT_EQ(document["inputs"][0]["size"], nullptr);
    EXPECT_THAT(freeKeys("evidence", document), IsEmpty());
}

TEST_F(EvidenceDocument, OfWhatIsNoLibraryFitsItsSchema)
{
    writeFile(path("notes.txt"), "notes");
    EXPECT_EQ(evidenceOf({"photos", path("notes.txt")}, 4)["outputs"], json::array());
}

TEST_F(EvidenceDocument, OfContactSheetsFitsItsSchema)
{
    writeFile(path("cache"), sampleThumbCache(120).bytes());
    const json document = evidenceOf({"thumb", path("cache"), "--sheet", path("sheet.png")}, 0);
    EXPECT_EQ(document["outputs"].size(), 2U);
    EXPECT_EQ(document["outputs"][1]["path"], path("sheet.png"));
}

TEST_F(EvidenceDocument, OfASqliteOutputFitsItsSchema)
{
    const ShapedSource source(allSourceShapes().front());
    const json document = evidenceOf({"photos", source.path(), "--sqlite", path("photos.db")}, 0);
    EXPECT_EQ(document["outputs"][1]["path"], path("photos.db"));
}
