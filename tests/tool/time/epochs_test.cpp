#include "time/epochs.h"

#include <gtest/gtest.h>

#include <limits>
#include <type_traits>

using namespace iosphoto::tool;

// Neither is taken for the other, or for a number.
static_assert(!std::is_convertible_v<UnixTime, CoreDataTime>);
static_assert(!std::is_convertible_v<CoreDataTime, UnixTime>);
static_assert(!std::is_convertible_v<UnixTime, std::int64_t>);
static_assert(!std::is_convertible_v<CoreDataTime, double>);
static_assert(!std::is_constructible_v<CoreDataTime, UnixTime>);

TEST(Epochs, Are31YearsApart)
{
    EXPECT_EQ(unixTimeOf(CoreDataTime{0}), UnixTime{978307200});
    EXPECT_EQ(unixTimeOf(CoreDataTime{1.75}), UnixTime{978307201});
    EXPECT_EQ(unixTimeOf(CoreDataTime{-978307200}), UnixTime{0});
}

TEST(Epochs, EndWhereTheCalendarDoes)
{
    constexpr UnixTime first = {-62135596800}; // 0001-01-01 00:00:00
    constexpr UnixTime last = {253402300799};  // 9999-12-31 23:59:59
    EXPECT_TRUE(isOfTheCalendar(first));
    EXPECT_TRUE(isOfTheCalendar(last));
    EXPECT_FALSE(isOfTheCalendar(UnixTime{first.seconds - 1}));
    EXPECT_FALSE(isOfTheCalendar(UnixTime{last.seconds + 1}));
    using Limits = std::numeric_limits<double>;
    for (const double seconds : {Limits::max(), Limits::lowest(), Limits::infinity(),
                                 -Limits::infinity(), Limits::quiet_NaN()})
        EXPECT_FALSE(isOfTheCalendar(CoreDataTime{seconds})) << seconds;
}
