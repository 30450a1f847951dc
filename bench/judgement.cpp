#include "judgement.h"

#include <algorithm>

namespace iosphoto::bench {

namespace {

bool isWithin(double value, int goal)
{
    return goal == 0 || value <= goal;
}

std::vector<double> ratiosOf(Group group, const std::vector<CaseResult> &results)
{
    std::vector<double> ratios;
    for (const CaseResult &result : results)
        if (result.of->group == group)
            ratios.push_back(result.time.ratio);
    return ratios;
}

std::size_t sizeOf(Group group)
{
    return static_cast<std::size_t>(std::count_if(
        std::begin(cases), std::end(cases), [&](const Case &each) { return each.group == group; }));
}

} // namespace

bool toolMeetsGoals(const ToolCost &cost, const Goals &goals)
{
    return goals.toolRatio == 0 ||
           (cost.time.ratio <= goals.toolRatio && cost.outputBytes.value_or(0) <= outputBytesGoal);
}

bool meetsGoals(const CaseResult &result)
{
    const Goals &goals = result.of->goals;
    if (result.time.ratio > goals.ratio)
        return false;
    const auto isMet = [&](const ToolCost &cost) { return toolMeetsGoals(cost, goals); };
    if (!std::all_of(result.tool.begin(), result.tool.end(), isMet))
        return false;
    return !result.memory || (isWithin(result.memory->held, goals.heldBytes) &&
                              isWithin(result.memory->peak, goals.peakBytes));
}

std::vector<Flatness> flatness(const std::vector<CaseResult> &results)
{
    std::vector<Flatness> judged;
    for (const auto &[group, name] : groups) {
        const std::vector<double> ratios = ratiosOf(group, results);
        if (ratios.size() != sizeOf(group))
            continue;
        const auto [least, most] = std::minmax_element(ratios.begin(), ratios.end());
        judged.push_back({name, *most - *least});
    }
    return judged;
}

bool meetAllGoals(const std::vector<CaseResult> &results)
{
    const std::vector<Flatness> groupsJudged = flatness(results);
    return std::all_of(results.begin(), results.end(), meetsGoals) &&
           std::all_of(groupsJudged.begin(), groupsJudged.end(),
                       [](const Flatness &group) { return group.isFlat(); });
}

int exitStatus(const std::vector<CaseResult> &results, bool isStrict)
{
    return isStrict && !meetAllGoals(results) ? 1 : 0;
}

} // namespace iosphoto::bench
