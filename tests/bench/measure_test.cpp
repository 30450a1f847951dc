#include "measure.h"

#include <gtest/gtest.h>

using namespace iosphoto;
using namespace iosphoto::bench;

TEST(Median, IsTheMiddleOneWhateverTheOrder)
{
    EXPECT_EQ(median({9, 1, 4}), 4);
    EXPECT_EQ(median({7}), 7);
}

TEST(Median, OfAnEvenNumberIsTheMeanOfTheTwoInTheMiddle)
{
    EXPECT_EQ(median({8, 1, 4, 100}), 6);
}

TEST(Median, OfNoneIsZero)
{
    EXPECT_EQ(median({}), 0);
}

TEST(Comparison, HasTheRatioWithinTheRounds)
{
    double speed = 1; // of a machine that slows down from round to round
    const bench::Run floor = [&] { return speed *= 2; };
    const bench::Run library = [&] { return speed * 1.5; };
    const Comparison result = compare(floor, library, 3);
    EXPECT_EQ(result.ratio, 1.5);
    EXPECT_EQ(result.seconds, result.floorSeconds * 1.5);
}
