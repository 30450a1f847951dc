#include "output/progress_bar.h"

#include <gtest/gtest.h>

using iosphoto::tool::progressLine;

TEST(ProgressLine, ShowsHowFarACommandIs)
{
    EXPECT_EQ(progressLine("writing", 0, 8, 80), "writing [                    ] 0/8");
    EXPECT_EQ(progressLine("writing", 2, 8, 80), "writing [#####               ] 2/8");
    EXPECT_EQ(progressLine("writing", 8, 8, 80), "writing [####################] 8/8");
}

TEST(ProgressLine, FitsIntoTheColumns)
{
    EXPECT_EQ(progressLine("writing", 4, 8, 21).size(), 21);
    for (std::size_t columns = 3; columns < 50; ++columns)
        EXPECT_LE(progressLine("writing", 4, 8, columns).size(), columns);
}

TEST(ProgressLine, IsOnlyTheNumbersOnATerminalThatIsTooNarrow)
{
    EXPECT_EQ(progressLine("writing", 4, 8, 17), "4/8");
}
