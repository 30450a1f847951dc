#include "tool_cost.h"

#include "child.h"
#include "device.h"
#include "library_run.h"
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

Comparison timeOf(const fs::path &database, const std::string &format, Rounds rounds)
{
    const auto build = [&] {
        LibraryRun library;
        return secondsOf([&] { library.read(database); });
    };
    const auto list = [&] {
        // As the build above has it at hand. The private copy takes as much as the database, and
        // the catalogue less.
        bringMemory(2 * fs::file_size(database));
        return secondsOfListing(database, format);
    };
    return compare(build, list, rounds);
}

} // namespace

std::vector<ToolCost> toolCosts(const fs::path &database, Rounds rounds)
{
    std::vector<ToolCost> costs;
    for (const char *format : {"jsonl", "csv"})
        costs.push_back({format, timeOf(database, format, rounds), outputBytes(database, format)});
    return costs;
}

} // namespace iosphoto::bench
