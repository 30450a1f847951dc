#include "support/expect_failure.h"
#include "support/sample_thumb_cache.h"
#include "support/sha256_of.h"

#include <QDateTime>

#include <nlohmann/json.hpp>

using namespace iosphoto::test;
using Json = nlohmann::ordered_json;

namespace fs = std::filesystem;

class ToolThumbEvidence : public testing::Test
{
protected:
    ToolThumbEvidence() { writeFile(cache_, bytes_); }

    /// Arguments of a command that keeps evidence.
    std::vector<std::string> thumb(const std::vector<std::string> &arguments) const
    {
        std::vector<std::string> all = {"thumb", cache_.string(), "--evidence", file_.string()};
        all.insert(all.end(), arguments.begin(), arguments.end());
        return all;
    }

    Json evidence() const { return Json::parse(readFile(file_)); }

    static Json output(const std::string &path, const std::string &content)
    {
        return {{"path", path},
                {"pathBytes", nullptr},
                {"size", content.size()},
                {"sha256", sha256Of(content)}};
    }

    TemporaryFolder folder_;
    std::string bytes_ = sampleThumbCache(120).bytes();
    fs::path cache_ = folder_ / "120x120.ithmb";
    fs::path file_ = folder_ / "evidence.json";
};

TEST_F(ToolThumbEvidence, TellsTheCommandAndItsSurroundings)
{
    const ToolRun run = runTool(thumb({}), {{"TZ", "Asia/Kolkata"}});
    EXPECT_EQ(run.error, "");
    EXPECT_EQ(run.status, 0);
    const Json document = evidence();
    EXPECT_EQ(document["tool"], (Json{{"name", "iosphoto"}, {"version", IOSPHOTO_VERSION}}));
    std::vector<std::string> commandLine = document["commandLine"];
    commandLine.erase(commandLine.begin()); // however the tool is called
    EXPECT_EQ(commandLine, thumb({}));
    EXPECT_EQ(document["workingFolder"], fs::current_path().string());
    EXPECT_EQ(document["timeZone"], (Json{{"name", "Asia/Kolkata"}, {"utcOffset", "+05:30"}}));
    EXPECT_EQ(document["exitStatus"], 0);
}

TEST_F(ToolThumbEvidence, TellsWhenTheCommandRan)
{
    const QDateTime before = QDateTime::currentDateTimeUtc();
    EXPECT_EQ(runTool(thumb({})).status, 0);
    const QDateTime after = QDateTime::currentDateTimeUtc();
    const auto time = [this](const char *key) {
        const std::string text = evidence()[key];
        EXPECT_EQ(text.back(), 'Z');
        return QDateTime::fromString(QString::fromStdString(text), Qt::ISODateWithMs);
    };
    EXPECT_LE(before, time("started"));
    EXPECT_LE(time("started"), time("finished"));
    EXPECT_LE(time("finished"), after);
}

TEST_F(ToolThumbEvidence, OfTheListingHashesTheCacheAndWhatIsPrinted)
{
    const ToolRun run = runTool(thumb({}));
    EXPECT_EQ(run, runTool({"thumb", cache_.string()}));
    const Json document = evidence();
    ASSERT_EQ(document["inputs"].size(), 1U);
    const Json &input = document["inputs"][0];
    EXPECT_EQ(input["path"], cache_.string());
    EXPECT_EQ(input["size"], bytes_.size());
    EXPECT_EQ(input["sha256"], sha256Of(bytes_));
    EXPECT_EQ(input["after"]["sha256"], sha256Of(bytes_));
    EXPECT_EQ(input["after"]["modified"], input["modified"]);
    EXPECT_EQ(input["isUnchanged"], true);
    EXPECT_EQ(document["outputs"], Json::array({output("-", run.out)}));
}

TEST_F(ToolThumbEvidence, OfAnExportHashesEachFile)
{
    const std::string folder = (folder_ / "pictures").string();
    const ToolRun run = runTool(thumb({"--all", "-o", folder}));
    EXPECT_EQ(run.error, "");
    EXPECT_EQ(run.status, 0);
    Json outputs = Json::array({output("-", run.out)});
    for (const char *name : {"/0000.bmp", "/0001.bmp", "/0003.bmp"})
        outputs.push_back(output(folder + name, readFile(folder + name)));
    EXPECT_EQ(evidence()["outputs"], outputs);
}

TEST_F(ToolThumbEvidence, OfACommandThatFailsTellsItsStatus)
{
    fs::remove(cache_);
    expectFailure(runTool(thumb({})), "cannot read " + quoted(cache_), 3);
    const Json document = evidence();
    EXPECT_EQ(document["inputs"][0]["path"], cache_.string());
    EXPECT_EQ(document["inputs"][0]["sha256"], nullptr);
    EXPECT_EQ(document["outputs"], Json::array());
    EXPECT_EQ(document["exitStatus"], 3);
}

TEST_F(ToolThumbEvidence, OfOutputThatNobodyReadsTellsItsStatus)
{
    EXPECT_EQ(runToolForNoReader(thumb({})), (ToolRun{"", "", 141}));
    EXPECT_EQ(evidence()["outputs"], Json::array());
    EXPECT_EQ(evidence()["exitStatus"], 141);
}

TEST_F(ToolThumbEvidence, IsNeverTheCacheNorAnOutput)
{
    expectFailure(runTool({"thumb", cache_.string(), "--evidence", cache_.string()}),
                  quoted(cache_) +
                      " is there already, and evidence replaces no file; choose another name\n",
                  2);
    EXPECT_EQ(readFile(cache_), bytes_);
    const std::string same = (folder_ / "x.bmp").string();
    expectFailure(
        runTool({"thumb", cache_.string(), "--index", "0", "-o", same, "--evidence", same}),
        "'" + same + "' is where the evidence goes; choose another", 2);
    EXPECT_EQ(Json::parse(readFile(same))["exitStatus"], 2);
}
