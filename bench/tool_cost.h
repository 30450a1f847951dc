/// What the command-line tool adds to the library.
#ifndef IOSPHOTO_BENCH_TOOL_COST_H
#define IOSPHOTO_BENCH_TOOL_COST_H

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
    Comparison time;                   ///< the library's build as the floor, and the tool
    std::optional<double> outputBytes; ///< as outputBytes() says
};

std::vector<ToolCost> toolCosts(const std::filesystem::path &database, Rounds rounds);

} // namespace iosphoto::bench

#endif // IOSPHOTO_BENCH_TOOL_COST_H
