#include "judgement.h"
#include "result_table.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace iosphoto::bench;

namespace {

CaseResult resultOf(const Case &measured, double ratio)
{
    CaseResult result = {};
    result.of = &measured;
    result.time.ratio = ratio;
    return result;
}

/// A result for each case of a group, the first with another ratio.
std::vector<CaseResult> resultsOf(Group group, double first, double others)
{
    std::vector<CaseResult> results;
    for (const Case &each : cases)
        if (each.group == group)
            results.push_back(resultOf(each, results.empty() ? first : others));
    return results;
}

constexpr Case measured = {
    "case", Group::None, Subject::GeneratedLibrary, {1000, 0, 0}, {1.2, 400, 450}};

} // namespace

TEST(Judgement, MissesTheGoalAboveItsRatio)
{
    EXPECT_TRUE(meetsGoals(resultOf(measured, 1.2)));
    EXPECT_FALSE(meetsGoals(resultOf(measured, 1.21)));
}

TEST(Judgement, MissesTheGoalAboveEitherMeasureOfMemory)
{
    CaseResult result = resultOf(measured, 1);
    result.memory = {400, 450};
    EXPECT_TRUE(meetsGoals(result));
    result.memory = {401, 450};
    EXPECT_FALSE(meetsGoals(result));
    result.memory = {400, 451};
    EXPECT_FALSE(meetsGoals(result));
}

TEST(Judgement, MissesTheGoalAboveTheToolsRatioOrMemory)
{
    constexpr Case withTool = {
        "case", Group::None, Subject::GeneratedLibrary, {1000, 0, 0}, {1.2, 0, 0, 2.0}};
    CaseResult result = resultOf(withTool, 1);
    result.tool = {{"csv", {1, 2, 2.0}, outputBytesGoal}};
    EXPECT_TRUE(meetsGoals(result));
    result.tool.push_back({"jsonl", {1, 2, 2.01}, 0});
    EXPECT_FALSE(meetsGoals(result));
    result.tool.back() = {"jsonl", {1, 2, 2.0}, outputBytesGoal + 1};
    EXPECT_FALSE(meetsGoals(result));
    result.of = &measured; // asks nothing of the tool
    EXPECT_TRUE(meetsGoals(result));
}

TEST(Judgement, AGroupIsFlatWithinATenth)
{
    for (const auto &[group, name] : groups) {
        const std::vector<Flatness> near = flatness(resultsOf(group, 1.09, 1));
        ASSERT_EQ(near.size(), 1U) << name;
        EXPECT_STREQ(near.front().group, name);
        EXPECT_TRUE(near.front().isFlat()) << name;
        EXPECT_TRUE(meetAllGoals(resultsOf(group, 1.09, 1))) << name;
        EXPECT_FALSE(meetAllGoals(resultsOf(group, 1.1, 0.99))) << name;
    }
}

TEST(Judgement, AGroupIsNotJudgedUnlessAllOfItRan)
{
    std::vector<CaseResult> results = resultsOf(Group::Bursts, 1.1, 0.9);
    results.pop_back();
    EXPECT_TRUE(flatness(results).empty());
    EXPECT_TRUE(meetAllGoals(results));
}

TEST(Judgement, OfAMissedGoalIsAFailureOnlyWhereItIsStrict)
{
    const std::vector<CaseResult> missed = {resultOf(measured, 1.21)};
    EXPECT_EQ(exitStatus(missed, true), 1);
    EXPECT_EQ(exitStatus(missed, false), 0);
    EXPECT_EQ(exitStatus({resultOf(measured, 1.2)}, true), 0);
}

TEST(ResultTable, HasARowForEachCaseAndALineForEachGroup)
{
    std::vector<CaseResult> results = resultsOf(Group::Sizes, 1.5, 1);
    results.front().time.floorSeconds = 0.5;
    results.front().memory = {300, 350};
    std::ostringstream out;
    printResults({results.front()}, out);
    EXPECT_EQ(out.str(),
              "case  assets  records  floor ms  library ms  ratio  goal          python  "
              "shell  bytes/record  peak/record\n"
              "10k        0        0    500.00        0.00  1.500  1.22  MISSED       -  "
              "    -           300          350\n");
    out.str("");
    printResults(results, out);
    EXPECT_EQ(out.str().find("photos"), std::string::npos) << out.str();
    EXPECT_NE(out.str().find("\nsizes: ratios differ by 0.50, goal 0.10, MISSED\n"),
              std::string::npos)
        << out.str();
}

TEST(ResultTable, HasARowForEachFormatOfTheTool)
{
    std::vector<CaseResult> results = resultsOf(Group::Sizes, 1, 1);
    results.back().tool = {{"jsonl", {6, 9, 1.5}, 1.2e6}, {"csv", {6, 13.2, 2.2}, 1e6}};
    std::ostringstream out;
    printResults(results, out);
    EXPECT_NE(out.str().find("\n\n"
                             "case  photos   floor ms   tool ms  ratio  goal          output MB\n"
                             "1m    --jsonl   6000.00   9000.00   1.50  2.00  ok       1.2 (16)\n"
                             "1m    --csv     6000.00  13200.00  2.200  2.00  MISSED   1.0 (16)\n"),
              std::string::npos)
        << out.str();
}
