#include "support/json_schema.h"
#include "support/two_snapshots.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <sstream>

using namespace iosphoto::test;
using nlohmann::json;
using testing::IsEmpty;

class ToolDiffOutput : public testing::Test
{
protected:
    ToolDiffOutput()
    {
        for (LibraryBuilder *library : {&phone_.before, &phone_.after}) {
            library->album("Trip");
            library->asset("IMG_0001.JPG");
        }
        phone_.before.asset("=IMG_0002.JPG").set("ZUUID", "OLD");
        phone_.after.execute("update ZASSET set ZFAVORITE = 1, ZWIDTH = 100, ZHASADJUSTMENTS = 1");
        phone_.after.execute("insert into Z_27ASSETS values (1, 1)");
        phone_.after.execute("update ZGENERICALBUM set ZTITLE = 'Line\n🎉'");
    }

    json favorite() const
    {
        return {{"uuid", "A0000000-0000-0000-0000-000000000001"},
                {"path", "DCIM/100APPLE/IMG_0001.JPG"},
                {"changes", {"edited", "moved", "changed"}},
                {"addedTo", {trip(3, "Line\n🎉")}},
                {"removedFrom", json::array()},
                {"changedFields", {"isFavorite"}},
                {"before", facts("IMG_0001.JPG", "2020-01-05T10:40:00Z", 4032, false)},
                {"after", facts("IMG_0001.JPG", "2020-01-05T10:40:00Z", 100, true)}};
    }

    json gone() const
    {
        return {{"uuid", "OLD"},
                {"path", "DCIM/100APPLE/=IMG_0002.JPG"},
                {"changes", {"gone"}},
                {"addedTo", json::array()},
                {"removedFrom", json::array()},
                {"changedFields", json::array()},
                {"before", facts("=IMG_0002.JPG", "2020-01-04T10:40:00Z", 4032, false)},
                {"after", nullptr}};
    }

    static json trip(int index, const char *name)
    {
        return {{"index", index}, {"kind", "user"},
                {"kindCode", 16}, {"englishKind", "User album"},
                {"name", name},   {"uuid", "B0000000-0000-0000-0000-000000000001"}};
    }

    /// @param isChanged  whether it is the photo that was edited and made a favorite
    static json facts(const char *fileName, const char *time, int width, bool isChanged)
    {
        json facts = {{"originalFileName", nullptr},
                      {"duration", 0.0},
                      {"added", time},
                      {"trashed", nullptr},
                      {"burstUuid", nullptr}};
        for (const char *flag :
             {"isBurstPick", "isVideo", "isTimelapse", "isSlomo", "isScreenRecording", "isPanorama",
              "isBurst", "isScreenshot", "isLivePhoto", "isSelfie", "isPortrait", "isAnimated",
              "isRaw", "isProRes"})
            facts[flag] = false;
        facts.update({{"directory", "DCIM/100APPLE"},
                      {"fileName", fileName},
                      {"created", time},
                      {"modified", time},
                      {"fileSize", 1000},
                      {"width", width},
                      {"height", 3024},
                      {"isEdited", isChanged},
                      {"isFavorite", isChanged},
                      {"isHidden", false},
                      {"isDeleted", false}});
        return facts;
    }

    /// The columns behind those of the facts above.
    static std::string others(const std::string &side)
    {
        std::string columns;
        for (const char *fact :
             {"originalFileName", "duration", "added", "trashed", "burstUuid", "isBurstPick",
              "isVideo", "isTimelapse", "isSlomo", "isScreenRecording", "isPanorama", "isBurst",
              "isScreenshot", "isLivePhoto", "isSelfie", "isPortrait", "isAnimated", "isRaw",
              "isProRes"})
            columns += (columns.empty() ? "" : ",") + side + "." + fact;
        return columns;
    }

    /// What stands in them of a photo that is nothing special.
    static std::string plain(const std::string &day)
    {
        std::string cells = ",0," + day + "T10:40:00Z,,";
        for (int flags = 0; flags < 14; ++flags)
            cells += ",false";
        return cells;
    }

    TwoSnapshots phone_;
};

TEST_F(ToolDiffOutput, JsonIsOneDocument)
{
    const ToolRun run = phone_.diff({"--json"});
    EXPECT_EQ(run.error, "");
    EXPECT_EQ(run.status, 1);

    const json document = json::parse(run.out);
    EXPECT_EQ(schemaComplaints("diff", document), "");
    EXPECT_THAT(freeKeys("diff", document), IsEmpty());
    EXPECT_EQ(document["a"]["source"], phone_.before.path());
    EXPECT_EQ(document["b"]["source"], phone_.after.path());
    EXPECT_EQ(document["b"]["iosVersion"], "15.0");
    EXPECT_EQ(document["photoCounts"], (json{{"new", 0},
                                             {"gone", 1},
                                             {"trashed", 0},
                                             {"restored", 0},
                                             {"edited", 1},
                                             {"moved", 1},
                                             {"changed", 1}}));
    EXPECT_EQ(document["albumCounts"],
              (json{{"new", 0}, {"gone", 0}, {"renamed", 1}, {"changed", 0}}));
    EXPECT_EQ(document["albums"], (json::array({{{"change", "renamed"},
                                                 {"before", trip(2, "Trip")},
                                                 {"after", trip(3, "Line\n🎉")}}})));
    EXPECT_EQ(document["photos"], json::array({favorite(), gone()}));
}

TEST_F(ToolDiffOutput, JsonFitsTheSchemaWhateverIsMissing)
{
    phone_.after.album("New").set("ZUUID", "NEW");
    phone_.before.album("Old").set("ZUUID", "OLD");
    phone_.after.asset("IMG_0003.JPG").set("ZUUID", nullptr).set("ZDATECREATED", 1e300);
    EXPECT_EQ(schemaComplaints("diff", json::parse(phone_.diff({"--json"}).out)), "");
}

TEST_F(ToolDiffOutput, JsonLinesNameBothSources)
{
    const ToolRun run = phone_.diff({"--jsonl"});
    EXPECT_EQ(run.error, "");
    EXPECT_EQ(run.status, 1);

    std::istringstream lines(run.out);
    for (json expected : {favorite(), gone()}) {
        expected["a"] = phone_.before.path();
        expected["aBytes"] = nullptr;
        expected["b"] = phone_.after.path();
        expected["bBytes"] = nullptr;
        std::string line;
        ASSERT_TRUE(std::getline(lines, line));
        EXPECT_EQ(json::parse(line), expected);
        EXPECT_EQ(schemaComplaints("diff-line", expected), "");
        EXPECT_THAT(freeKeys("diff-line", expected), IsEmpty());
    }
    EXPECT_EQ(lines.peek(), EOF);
}

TEST_F(ToolDiffOutput, CsvHasTheFactsAsColumns)
{
    const std::string time = "2020-01-05T10:40:00Z,2020-01-05T10:40:00Z";
    const std::string oldTime = "2020-01-04T10:40:00Z,2020-01-04T10:40:00Z";
    EXPECT_EQ(
        phone_.diff({"--csv"}),
        (ToolRun{
            "uuid,path,changes,addedTo,removedFrom,changedFields,before.directory,before.fileName,"
            "before.created,before.modified,before.fileSize,before.width,before.height,"
            "before.isEdited,before.isFavorite,before.isHidden,before.isDeleted," +
                others("before") +
                ",after.directory,after.fileName,after.created,after.modified,after.fileSize,"
                "after.width,after.height,after.isEdited,after.isFavorite,after.isHidden,"
                "after.isDeleted," +
                others("after") +
                "\r\n"
                "A0000000-0000-0000-0000-000000000001,DCIM/100APPLE/IMG_0001.JPG,\"edited; moved; "
                "changed\",\"Line\n🎉\",,isFavorite,DCIM/100APPLE,IMG_0001.JPG," +
                time + ",1000,4032,3024,false,false,false,false," + plain("2020-01-05") +
                ",DCIM/100APPLE,IMG_0001.JPG," + time + ",1000,100,3024,true,true,false,false," +
                plain("2020-01-05") +
                "\r\n"
                "OLD,DCIM/100APPLE/=IMG_0002.JPG,gone,,,,DCIM/100APPLE,'=IMG_0002.JPG," +
                oldTime + ",1000,4032,3024,false,false,false,false," + plain("2020-01-04") +
                std::string(30, ',') + "\r\n",
            "", 1}));
}
