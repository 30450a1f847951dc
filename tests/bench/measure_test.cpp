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

namespace {

/// Each run of anything takes its multiple of a second more than the run before.
class SlowingMachine
{
public:
    bench::Run run(double multiple)
    {
        return [this, multiple] { return multiple * ++seconds_; };
    }

private:
    double seconds_ = 0;
};

} // namespace

TEST(Comparison, IsNotTiltedByAMachineThatSlowsDown)
{
    SlowingMachine machine;
    EXPECT_EQ(compare(machine.run(1), machine.run(1.5), {3}).ratio, 1.5);
}

TEST(Comparison, DoesNotCountARoundThatWasDisturbed)
{
    constexpr double seconds = 3;
    constexpr int fourthRun = 4;
    int runs = 0;
    const bench::Run floor = [] { return seconds; };
    const bench::Run library = [&] { return ++runs == fourthRun ? 7 * seconds : 1.25 * seconds; };
    const Comparison result = compare(floor, library, {3});
    EXPECT_EQ(result.ratio, 1.25);
    EXPECT_EQ(result.floorSeconds, seconds);
    EXPECT_EQ(result.seconds, 1.25 * seconds);
}

TEST(Comparison, RepeatsWhatIsShortUntilARoundIsLongEnough)
{
    int runs = 0;
    const bench::Run floor = [&] { return ++runs, 0.5; };
    const bench::Run library = [] { return 1; };
    compare(floor, library, {3, 4});
    constexpr int first = 1; // to know how long it takes
    EXPECT_EQ(runs, first + 3 * 4 / 0.5);
}
