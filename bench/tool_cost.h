/// What the command-line tool costs.
#ifndef IOSPHOTO_BENCH_TOOL_COST_H
#define IOSPHOTO_BENCH_TOOL_COST_H

#include "floor.h"
#include "measure.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace iosphoto::bench {

/// Listing the photos of a library in one format, to nowhere.
struct ToolCost
{
    std::string format;                ///< "jsonl" or "csv"
    Comparison time;                   ///< the floor, and the tool
    std::optional<double> outputBytes; ///< as outputBytes() says
};

std::vector<ToolCost> toolCosts(const std::filesystem::path &database, const Floor &floor,
                                Rounds rounds);

} // namespace iosphoto::bench

#endif // IOSPHOTO_BENCH_TOOL_COST_H
