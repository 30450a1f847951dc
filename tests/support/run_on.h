#ifndef IOSPHOTO_TESTS_RUN_ON_H
#define IOSPHOTO_TESTS_RUN_ON_H

#include "support/library_builder.h"
#include "support/run_tool.h"

namespace iosphoto::test {

/// The moment of runOn(), in seconds since 2001: 2020-01-10 00:00:00 UTC, four days after a
/// LibraryBuilder's newest asset.
constexpr std::int64_t readingTime = 600307200;
constexpr std::int64_t days = 24 * 60 * 60;

/// Runs a command of the tool on a library, as of a moment and a device that are named, so that it
/// has no assumption to speak of.
inline ToolRun runOn(const LibraryBuilder &library, const std::string &command,
                     const std::vector<std::string> &arguments = {})
{
    std::vector<std::string> all = {command,     library.path(), "--ios",   "15.0",
                                    "--product", "iPhone14,2",   "--as-of", "2020-01-10"};
    all.insert(all.end(), arguments.begin(), arguments.end());
    return runTool(all);
}

/// What `photos --fields fileName` prints, and that nothing else is said.
inline ToolRun fileNames(const std::vector<std::string> &names)
{
    std::string out = "fileName\n";
    for (const std::string &name : names)
        out += name + "\n";
    return {out, "", 0};
}

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_RUN_ON_H
