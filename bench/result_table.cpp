#include "result_table.h"

#include "judgement.h"
#include "terminal/text_table.h"

#include <fmt/format.h>

#include <algorithm>

namespace iosphoto::bench {

namespace {

constexpr auto right = tool::TextTable::Align::Right;

const char *verdict(bool isMet)
{
    return isMet ? "ok" : "MISSED";
}

std::string ratio(const std::optional<double> &value)
{
    return value ? fmt::format("{:.2f}", *value) : "-";
}

/// With a digit more where it missed its goal, perhaps by little.
std::string judgedRatio(double value, double goal)
{
    return goal != 0 && value > goal ? fmt::format("{:.3f}", value) : ratio(value);
}

std::string milliseconds(double seconds)
{
    return fmt::format("{:.2f}", seconds * 1000);
}

/// The goal stands in brackets behind.
std::string bytes(const std::optional<MemoryUse> &memory, double MemoryUse::*part, int goal)
{
    if (!memory)
        return "-";
    const std::string value = fmt::format("{:.0f}", *memory.*part);
    return goal != 0 ? fmt::format("{} ({})", value, goal) : value;
}

std::string megabytes(const std::optional<double> &value, bool isJudged)
{
    if (!value)
        return "-";
    const std::string text = fmt::format("{:.1f}", *value / 1e6);
    return isJudged ? fmt::format("{} ({:.0f})", text, outputBytesGoal / 1e6) : text;
}

std::vector<std::string> cells(const CaseResult &result)
{
    const Goals &goals = result.of->goals;
    return {result.of->name,
            std::to_string(result.assets),
            std::to_string(result.records),
            milliseconds(result.time.floorSeconds),
            milliseconds(result.time.seconds),
            judgedRatio(result.time.ratio, goals.ratio),
            ratio(goals.ratio),
            verdict(meetsGoals(result)),
            ratio(result.pythonRatio),
            ratio(result.shellRatio),
            bytes(result.memory, &MemoryUse::held, goals.heldBytes),
            bytes(result.memory, &MemoryUse::peak, goals.peakBytes)};
}

std::vector<std::string> cells(const CaseResult &result, const ToolCost &cost)
{
    const Goals &goals = result.of->goals;
    const bool isJudged = goals.toolRatio != 0;
    return {result.of->name,
            "--" + cost.format,
            milliseconds(cost.time.floorSeconds),
            milliseconds(cost.time.seconds),
            judgedRatio(cost.time.ratio, goals.toolRatio),
            isJudged ? ratio(goals.toolRatio) : "",
            isJudged ? verdict(toolMeetsGoals(cost, goals)) : "",
            megabytes(cost.outputBytes, isJudged)};
}

void printToolCosts(const std::vector<CaseResult> &results, std::ostream &out)
{
    if (std::all_of(results.begin(), results.end(),
                    [](const CaseResult &result) { return result.tool.empty(); }))
        return;
    tool::TextTable table({{"case"},
                           {"photos"},
                           {"floor ms", right},
                           {"tool ms", right},
                           {"ratio", right},
                           {"goal", right},
                           {""},
                           {"output MB", right}});
    for (const CaseResult &result : results)
        for (const ToolCost &cost : result.tool)
            table.add(cells(result, cost));
    out << '\n';
    table.print(out, tool::Terminal().screenOf(out));
}

} // namespace

void printResults(const std::vector<CaseResult> &results, std::ostream &out)
{
    tool::TextTable table({{"case"},
                           {"assets", right},
                           {"records", right},
                           {"floor ms", right},
                           {"library ms", right},
                           {"ratio", right},
                           {"goal", right},
                           {""},
                           {"python", right},
                           {"shell", right},
                           {"bytes/record", right},
                           {"peak/record", right}});
    for (const CaseResult &result : results)
        table.add(cells(result));
    table.print(out, tool::Terminal().screenOf(out));
    for (const Flatness &group : flatness(results))
        out << fmt::format("{}: ratios differ by {:.2f}, goal {:.2f}, {}\n", group.group,
                           group.spread, flat, verdict(group.isFlat()));
    printToolCosts(results, out);
}

} // namespace iosphoto::bench
