// thumb --json
#include "support/cache_file.h"
#include "support/json_schema.h"
#include "support/run_tool.h"
#include "support/sample_thumb_cache.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

using namespace iosphoto::test;
using nlohmann::json;
using testing::IsEmpty;

class ThumbDocument : public testing::Test
{
protected:
    /// The document of a command that succeeds, or that something is missing of.
    json document(std::vector<std::string> arguments, int status = 0) const
    {
        arguments.insert(arguments.begin(), {"thumb", cache_.path(), "--json"});
        const ToolRun run = runTool(arguments);
        EXPECT_EQ(run.status, status) << run.error;
        json document = json::parse(run.out);
        EXPECT_EQ(schemaComplaints("thumb", document), "");
        return document;
    }
    std::string output(const char *name) const { return (folder_ / name).string(); }

    CacheFile cache_{sampleThumbCache(120).bytes()};
    TemporaryFolder folder_;
};

TEST_F(ThumbDocument, FitsItsSchemaWhichFixesEachKey)
{
    EXPECT_THAT(freeKeys("thumb", document({})), IsEmpty());
}

TEST_F(ThumbDocument, NamesTheFilesThatAreWritten)
{
    const json one = document({"--index", "1", "-o", output("one.png")});
    EXPECT_EQ(one["thumbnails"][0]["file"], nullptr);
    EXPECT_EQ(one["thumbnails"][1]["file"], output("one.png"));
    const json all = document({"--all", "-o", output("all")});
    EXPECT_EQ(all["thumbnails"][2]["file"], output("all/0003.bmp"));
    EXPECT_EQ(all["sheets"], json::array());
}

TEST_F(ThumbDocument, NamesTheSheets)
{
    const json document = this->document({"--sheet", output("sheet.png")});
    EXPECT_EQ(document["sheets"], json::array({output("sheet.png")}));
    EXPECT_EQ(document["thumbnails"][0]["file"], nullptr);
}

TEST_F(ThumbDocument, OfADamagedCacheIsNotComplete)
{
    const int recordSize = ThumbLayout(120).recordSize();
    cache_.resize(3 * recordSize + recordSize / 2); // in the middle of the last thumbnail
    EXPECT_EQ(document({}, 1)["isComplete"], false);
}
