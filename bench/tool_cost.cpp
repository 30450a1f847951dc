#include "tool_cost.h"

#include "child.h"
#include "device.h"
#include "library_run.h"

#include <stdexcept>

namespace iosphoto::bench {

namespace {

namespace fs = std::filesystem;

using Options = std::vector<std::string>;

ChildRun listPhotos(const fs::path &database, const Options &options)
{
    Options command = {IOSPHOTO_TOOL, "photos",    database.string(), "--ios",
                       iosVersion,    "--product", productType,       "--quiet"};
    command.insert(command.end(), options.begin(), options.end());
    ChildRun run = runChild(command, Output::Dropped);
    if (run.status != 0)
        throw std::runtime_error("the tool cannot list the photos of " + database.string());
    return run;
}

double outputBytes(const fs::path &database, const char *format)
{
    return listPhotos(database, {format}).peakBytes -
           listPhotos(database, {format, "--limit", "1"}).peakBytes;
}

Comparison timeOf(const fs::path &database, const char *format, int rounds)
{
    const auto build = [&] {
        LibraryRun library;
        return secondsOf([&] { library.read(database); });
    };
    const auto list = [&] { return listPhotos(database, {format}).processorSeconds; };
    return compare(build, list, rounds);
}

} // namespace

std::vector<ToolCost> toolCosts(const fs::path &database, int rounds)
{
    std::vector<ToolCost> costs;
    for (const char *format : {"--jsonl", "--csv"})
        costs.push_back({format, {}, outputBytes(database, format)});
    for (ToolCost &cost : costs)
        cost.time = timeOf(database, cost.format, rounds);
    return costs;
}

} // namespace iosphoto::bench
