#include "result_table.h"

#include "judgement.h"
#include "output/text_table.h"

#include <fmt/format.h>

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

std::vector<std::string> cells(const CaseResult &result)
{
    const Goals &goals = result.of->goals;
    return {result.of->name,
            std::to_string(result.assets),
            std::to_string(result.records),
            milliseconds(result.time.floorSeconds),
            milliseconds(result.time.librarySeconds),
            ratio(result.time.ratio),
            ratio(goals.ratio),
            verdict(meetsGoals(result)),
            ratio(result.pythonRatio),
            ratio(result.shellRatio),
            bytes(result.memory, &MemoryUse::held, goals.heldBytes),
            bytes(result.memory, &MemoryUse::peak, goals.peakBytes)};
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
    table.print(out);
    for (const Flatness &group : flatness(results))
        out << fmt::format("{}: ratios differ by {:.2f}, goal {:.2f}, {}\n", group.group,
                           group.spread, flat, verdict(group.isFlat()));
}

} // namespace iosphoto::bench
