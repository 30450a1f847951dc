#include "tool_cost.h"

#include "child.h"
#include "device.h"
#include "output_memory.h"
#include "system_memory.h"

#include <stdexcept>

namespace iosphoto::bench {

namespace {

namespace fs = std::filesystem;

double secondsOfListing(const fs::path &database, const std::string &format)
{
    const ChildRun run = runChild({IOSPHOTO_TOOL, "photos", database.string(), "--ios", iosVersion,
                                   "--product", productType, "--quiet", "--" + format},
                                  Output::Dropped);
    if (run.status != 0)
        throw std::runtime_error("the tool cannot list the photos of " + database.string());
    return run.processorSeconds;
}

Comparison timeOf(const fs::path &database, const std::string &format, const Floor &floor,
                  Rounds rounds)
{
    const auto visit = [&] { return secondsOf([&] { floor.visitAll(); }); };
    const auto list = [&] {
        // As what runs in this process has it at hand. The private copy takes as much as the
        // database, and the catalogue less.
        bringMemory(2 * fs::file_size(database));
        return secondsOfListing(database, format);
    };
    return compare(visit, list, rounds);
}

} // namespace

std::vector<ToolCost> toolCosts(const fs::path &database, const Floor &floor, Rounds rounds)
{
    std::vector<ToolCost> costs;
    for (const char *format : {"jsonl", "csv"})
        costs.push_back(
            {format, timeOf(database, format, floor, rounds), outputBytes(database, format)});
    return costs;
}

} // namespace iosphoto::bench
