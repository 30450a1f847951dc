#ifndef IOSPHOTO_TESTS_TWO_SNAPSHOTS_H
#define IOSPHOTO_TESTS_TWO_SNAPSHOTS_H

#include "model/core_data_time.h"
#include "support/library_builder.h"
#include "support/run_tool.h"

#include <gtest/gtest.h>

#include <ctime>

namespace iosphoto::test {

/// Two databases of one phone, in which a test changes what happened in between. Rows that are
/// inserted into both in the same order have the same uuids.
struct TwoSnapshots
{
    explicit TwoSnapshots(const Schema &schema = ios15) : before(schema), after(schema) {}

    /// Compares them, read as iOS 15.0 and iPhone14,2 without a word of what was assumed.
    ToolRun diff(std::vector<std::string> options = {}) const
    {
        options.insert(options.begin(), {"diff", before.path(), after.path(), "--ios", "15.0",
                                         "--product", "iPhone14,2", "--quiet"});
        return runTool(options);
    }

    /// A moment for the trash: it keeps assets for 30 days before the present.
    static std::int64_t justNow() { return std::time(nullptr) - coreDataEpoch; }

    LibraryBuilder before;
    LibraryBuilder after;
};

/// What the comparison shows below the heading of its table.
inline std::string rowsAndSummary(const ToolRun &run)
{
    EXPECT_EQ(run.out.substr(0, run.out.find(' ')), "CHANGE");
    return run.out.substr(run.out.find('\n') + 1);
}

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_TWO_SNAPSHOTS_H
