// Paths that are not UTF-8: documents give their bytes too.
#include "support/json_schema.h"
#include "support/query.h"
#include "support/sample_thumb_cache.h"
#include "support/source_folder.h"

#include <nlohmann/json.hpp>

using namespace iosphoto::test;
using nlohmann::json;

namespace fs = std::filesystem;

class ToolPathBytes : public SourceFolder
{
protected:
    ToolPathBytes()
    {
        std::error_code error;
        fs::create_directory(odd_, error);
        if (error)
            return; // this system takes UTF-8 only
        isPossible_ = true;
        putMedia(odd_ / "Media");
    }
    void SetUp() override
    {
        if (!isPossible_)
            GTEST_SKIP() << "this system takes no such names";
    }

    static json documentOf(const std::string &schema, const std::vector<std::string> &arguments)
    {
        json document = json::parse(runTool(arguments).out);
        EXPECT_EQ(schemaComplaints(schema, document), "");
        return document;
    }

    const fs::path odd_ = folder_ / "caf\xe9 1+1%";
    const std::string text_ = (folder_ / "caf\xef\xbf\xbd 1+1%").string();
    const std::string bytes_ = folder_.path().string() + "/caf%E9%201%2B1%25";
    bool isPossible_ = false;
};

TEST_F(ToolPathBytes, StandBesideTheTextInDocumentsOfALibrary)
{
    const std::string media = (odd_ / "Media").string();
    for (const char *const command : {"info", "albums", "photos"}) {
        const json document = documentOf(command, {command, media, "--json"});
        EXPECT_EQ(document["source"], text_ + "/Media");
        EXPECT_EQ(document["sourceBytes"], bytes_ + "/Media");
        EXPECT_EQ(document["databaseBytes"], bytes_ + "/Media/PhotoData/Photos.sqlite");
    }
    const json difference = documentOf("diff", {"diff", media, library_.path(), "--json"});
    EXPECT_EQ(difference["a"]["sourceBytes"], bytes_ + "/Media");
    EXPECT_EQ(difference["b"]["sourceBytes"], nullptr);
}

TEST_F(ToolPathBytes, StandInEachLine)
{
    const std::string media = (odd_ / "Media").string();
    EXPECT_EQ(documentOf("photos-line", {"photos", media, "--jsonl"})["sourceBytes"],
              bytes_ + "/Media");
    const LibraryBuilder other(ios15);
    const json line = documentOf("diff-line", {"diff", other.path(), media, "--jsonl"});
    EXPECT_EQ(line["aBytes"], nullptr);
    EXPECT_EQ(line["bBytes"], bytes_ + "/Media");
}

TEST_F(ToolPathBytes, StandInASqliteOutput)
{
    const std::string out = (folder_ / "out.db").string();
    EXPECT_EQ(runTool({"albums", (odd_ / "Media").string(), "--sqlite", out}).status, 0);
    EXPECT_EQ(query(out, "select sourceBytes from library").at(0).at(0), bytes_ + "/Media");
}

TEST_F(ToolPathBytes, StandInTheListOfBackups)
{
    const json document = documentOf("backups", {"backups", odd_.string(), "--json"});
    EXPECT_EQ(document["searched"][0]["pathBytes"], bytes_);
    EXPECT_EQ(document["libraries"][0]["pathBytes"], bytes_ + "/Media");
}

TEST_F(ToolPathBytes, StandInDocumentsOfThumbnails)
{
    const std::string cache = (odd_ / "cache").string();
    writeFile(cache, sampleThumbCache(120).bytes());
    const json document =
        documentOf("thumb", {"thumb", cache, "--all", "-o", (odd_ / "out").string(), "--json"});
    EXPECT_EQ(document["cacheBytes"], bytes_ + "/cache");
    EXPECT_THAT(document["thumbnails"][0]["fileBytes"].get<std::string>(),
                testing::StartsWith(bytes_ + "/out/"));
    const json sheet =
        documentOf("thumb", {"thumb", cache, "--sheet", (odd_ / "sheet.png").string(), "--json"});
    EXPECT_EQ(sheet["sheetBytes"], json::array({bytes_ + "/sheet.png"}));
}

TEST_F(ToolPathBytes, StandInEvidence)
{
    const fs::path file = odd_ / "evidence.json";
    const std::string cache = (odd_ / "cache").string();
    writeFile(cache, sampleThumbCache(120).bytes());
    const fs::path sheet = odd_ / "sheet.png";
    ASSERT_EQ(
        runTool({"thumb", cache, "--sheet", sheet.string(), "--evidence", file.string()}).status,
        0);
    const json document = json::parse(readFile(file));
    EXPECT_EQ(schemaComplaints("evidence", document), "");
    EXPECT_EQ(document["inputs"][0]["pathBytes"], bytes_ + "/cache");
    EXPECT_EQ(document["outputs"][0]["pathBytes"], nullptr);
    EXPECT_EQ(document["outputs"][1]["pathBytes"], bytes_ + "/sheet.png");
    EXPECT_EQ(document["commandLineBytes"][1], nullptr);
    EXPECT_EQ(document["commandLineBytes"][2], bytes_ + "/cache");
    EXPECT_EQ(document["workingFolderBytes"], nullptr);
}
