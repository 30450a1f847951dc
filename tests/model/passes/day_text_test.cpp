#include "model/passes/day_text.h"

#include "model/core_data_time.h"
#include "support/case_name.h"
#include "support/time_zone.h"

#include <gtest/gtest.h>

#include <cstring>

using namespace iosphoto;
using namespace iosphoto::test;

namespace {

struct Stretch
{
    const char *zone;
    std::int64_t from; ///< Unix time
    std::int64_t step; ///< seconds between neighbours
    const char *label;

    std::string name() const { return std::string(zone, std::strcspn(zone, "<")) + "_" + label; }
};

constexpr std::int64_t hour = 3600;

const Stretch stretches[] = {
    {"UTC", 1577836800, 599, "NewYear"},
    {"UTC", 0, 599, "FirstDay"},
    {"UTC", 4294967295 - 40 * hour, 599, "LastDayOf32Bits"},
    {"UTC", 2147483647 - 40 * hour, 599, "LastDayOf31Bits"},
    {"America/New_York", 2145916799 - 40 * hour, 599, "NewYear2038"},
    {"<+12>-12<+13>,M11.2.0,M1.2.3/99", 2147263200, 599, "ClocksBackInJanuary2038"},
    {"Asia/Shanghai", 1577836800, 599, "NewYear"},
    {"America/New_York", 1583640000, 599, "ClocksForward"},
    {"America/New_York", 1604203200, 599, "ClocksBack"},
    {"America/Sao_Paulo", 1541268000, 599, "DayWithoutMidnight"},
    {"America/St_Johns", 1257033600, 29, "ClocksBackAMinutePastMidnight"},
    {"Pacific/Apia", 1325131200, 599, "DayThatDidNotHappen"},
    {"Pacific/Kiritimati", 1577836800, 599, "FarthestAhead"},
    {"Asia/Kathmandu", 504921600, 599, "QuarterHour"},
};

} // namespace

class DayTextIn : public testing::TestWithParam<Stretch>
{
};

TEST_P(DayTextIn, SaysWhatTheCalendarSaysInWhateverOrder)
{
    const TimeZone zone(GetParam().zone);
    DayText forward;
    DayText backward;
    constexpr int steps = 400;
    for (int i = 0; i < steps; ++i) {
        const std::int64_t early = GetParam().from + i * GetParam().step;
        const std::int64_t late = GetParam().from + (steps - i) * GetParam().step;
        ASSERT_EQ(forward.of(early), localTime(early).toString("yyyy-MM-dd")) << early;
        ASSERT_EQ(backward.of(late), localTime(late).toString("yyyy-MM-dd")) << late;
    }
}

INSTANTIATE_TEST_SUITE_P(Zones, DayTextIn, testing::ValuesIn(stretches), NameOfCase());

TEST(DayText, IsSharedByTheTimesOfADay)
{
    const TimeZone zone("UTC");
    DayText text;
    const QString morning = text.of(1577836800);
    EXPECT_EQ(morning.constData(), text.of(1577836800 + 86399).constData());
    EXPECT_NE(morning, text.of(1577836800 + 86400));
    EXPECT_NE(morning, text.of(1577836800 - 1));
}
