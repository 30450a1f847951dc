/// What the command-line tool adds to the library.
#ifndef IOSPHOTO_BENCH_TOOL_COST_H
#define IOSPHOTO_BENCH_TOOL_COST_H

#include "measure.h"

#include <filesystem>
#include <vector>

namespace iosphoto::bench {

/// Listing the photos of a library in one format, to nowhere.
struct ToolCost
{
    const char *format; ///< the option, such as "--jsonl"
    Comparison time;    ///< the library's build as the floor, and the tool
    double outputBytes; ///< memory at the peak that listing all photos takes over listing one
};

/// To be called while this process is small: the system adds what it was started from to the
/// memory of a program.
std::vector<ToolCost> toolCosts(const std::filesystem::path &database, int rounds);

} // namespace iosphoto::bench

#endif // IOSPHOTO_BENCH_TOOL_COST_H
