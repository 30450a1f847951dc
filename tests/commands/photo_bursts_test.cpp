#include "model/database_codes.h"
#include "support/run_on.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

using namespace iosphoto;
using namespace iosphoto::test;

class ToolBursts : public testing::Test
{
protected:
    AssetRow frame(const std::string &name, int pickType, const std::string &burst = "one")
    {
        return library_.asset(name)
            .set("ZAVALANCHEPICKTYPE", pickType)
            .set("ZAVALANCHEUUID", burst);
    }

    ToolRun photos(std::vector<std::string> arguments = {}) const
    {
        arguments.insert(arguments.end(), {"--fields", "fileName,what"});
        return runOn(library_, "photos", arguments);
    }

    static constexpr int nobodysChoice = BurstPickType::NotPicked;
    static constexpr int otherPick = BurstPickType::ShownPickedBySystem;
    static constexpr int pick = BurstPickType::Shown;
    LibraryBuilder library_{ios15};
};

TEST_F(ToolBursts, AreALineThatThePickStandsFor)
{
    library_.asset("before.JPG");
    frame("1.JPG", nobodysChoice);
    frame("2.JPG", pick);
    frame("3.JPG", nobodysChoice);
    library_.asset("after.JPG");
    EXPECT_EQ(photos(), (ToolRun{"fileName    WHAT\n"
                                 "before.JPG\n"
                                 "2.JPG       burst of 3\n"
                                 "after.JPG\n",
                                 "", 0}));
}

TEST_F(ToolBursts, ListTheirFramesWhenAskedTo)
{
    frame("1.JPG", nobodysChoice);
    frame("2.JPG", pick);
    frame("other.JPG", pick, "two");
    EXPECT_EQ(photos({"--frames"}), (ToolRun{"fileName   WHAT\n"
                                             "1.JPG      burst of 2\n"
                                             "2.JPG      burst of 2\n"
                                             "other.JPG  burst of 1\n",
                                             "", 0}));
}

TEST_F(ToolBursts, WithoutAPickTheFirstFrameTakenStandsForThem)
{
    frame("2.JPG", nobodysChoice);
    frame("1.JPG", nobodysChoice);
    EXPECT_EQ(photos(), (ToolRun{"fileName  WHAT\n1.JPG     burst of 2\n", "", 0}));
}

TEST_F(ToolBursts, FrameThatFitsIsFoundThoughTheOneBeforeItDoesNot)
{
    frame("1.JPG", otherPick).set("ZFAVORITE", 1);
    frame("2.JPG", pick);
    EXPECT_EQ(photos({"--favorite"}),
              (ToolRun{"fileName  WHAT\n1.JPG     burst of 2, favorite\n", "", 0}));
}

TEST_F(ToolBursts, KeepTheirTrashApart)
{
    frame("1.JPG", otherPick).trashedAt(readingTime - 10 * days);
    frame("2.JPG", pick);
    EXPECT_EQ(photos(), (ToolRun{"fileName  WHAT\n"
                                 "1.JPG     burst of 2, deleted, 20 days left, goes 2020-01-30\n"
                                 "2.JPG     burst of 2\n",
                                 "", 0}));
}

TEST_F(ToolBursts, AreAlikeInDocuments)
{
    frame("1.JPG", nobodysChoice);
    frame("2.JPG", pick);
    const ToolRun run =
        runOn(library_, "photos",
              {"--jsonl", "--fields", "fileName,burstUuid,burstCount,burstFrames,isBurstPick"});
    EXPECT_EQ(run,
              (ToolRun{"{\"source\":\"" + library_.path() +
                           "\",\"sourceBytes\":null,\"fileName\":\"2.JPG\",\"burstUuid\":\"one\","
                           "\"burstCount\":2,\"burstFrames\":2,\"isBurstPick\":true}\n",
                       "", 0}));
}
