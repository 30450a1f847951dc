// What the README says of the iOS versions that can be read is what the command can read.
#include "docs/documents.h"
#include "schema/known_schemas.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace iosphoto::test;
using iosphoto::tool::newestSchema;
using iosphoto::tool::oldestSchema;
using testing::Contains;

TEST(Readme, NamesTheOldestAndTheNewestIosThatCanBeRead)
{
    const std::string range = "iOS " + std::to_string(oldestSchema().firstIos) + " to " +
                              std::to_string(newestSchema().lastIos) + ",";
    EXPECT_THAT(linesOfDocument("README.md"), Contains(testing::HasSubstr(range)));
}

TEST(Readme, TellsWhereTheNewestIosWasTested)
{
    const std::string row =
        "\\| ([0-9]+ to )?" + std::to_string(newestSchema().lastIos) + " \\|.*\\| .*[a-z].*\\|";
    EXPECT_THAT(linesOfDocument("README.md"), Contains(testing::MatchesRegex(row)));
}
