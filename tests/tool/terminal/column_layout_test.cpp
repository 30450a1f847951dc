#include "terminal/column_layout.h"

#include <gtest/gtest.h>

using namespace iosphoto::tool;

namespace {

constexpr std::optional<std::size_t> leftOut;

/// A number, a long text, and two columns of which the last goes first.
const std::vector<ColumnNeeds> columns = {{5, 5}, {30, 10}, {7, 7, 2}, {9, 9, 1}};

} // namespace

TEST(ColumnLayout, IsWholeWhereThereIsRoom)
{
    EXPECT_EQ(widthsThatFit(columns, 5 + 30 + 7 + 9 + 3 * columnGap), wholeWidths(columns));
}

TEST(ColumnLayout, CutsBeforeItLeavesOut)
{
    EXPECT_EQ(widthsThatFit(columns, 5 + 10 + 7 + 9 + 3 * columnGap), (ColumnWidths{5, 10, 7, 9}));
}

TEST(ColumnLayout, LeavesOutAsFewAsPossibleInTheOrderOfTheirRanks)
{
    EXPECT_EQ(widthsThatFit(columns, 36), (ColumnWidths{5, 20, 7, leftOut}));
    EXPECT_EQ(widthsThatFit(columns, 26), (ColumnWidths{5, 10, 7, leftOut}));
    EXPECT_EQ(widthsThatFit(columns, 25), (ColumnWidths{5, 18, leftOut, leftOut}));
}

TEST(ColumnLayout, IsNoneWhereTheOthersDoNotFit)
{
    EXPECT_EQ(widthsThatFit(columns, 17), (ColumnWidths{5, 10, leftOut, leftOut}));
    EXPECT_EQ(widthsThatFit(columns, 16), std::nullopt);
}

TEST(ColumnLayout, CutsTheLastColumnsWhereLeavingOutOthersDoesNotHelp)
{
    const std::vector<ColumnNeeds> withPath = {{5, 5}, {7, 7, 1}, {30, 30, 0, 10}};
    EXPECT_EQ(widthsThatFit(withPath, 37), (ColumnWidths{5, leftOut, 30}));
    EXPECT_EQ(widthsThatFit(withPath, 36), (ColumnWidths{5, leftOut, 29}));
    EXPECT_EQ(widthsThatFit(withPath, 17), (ColumnWidths{5, leftOut, 10}));
    EXPECT_EQ(widthsThatFit(withPath, 16), std::nullopt);
}
