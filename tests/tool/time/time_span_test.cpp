#include "time/time_span.h"

#include "support/case_name.h"
#include "support/time_zone.h"
#include "time/time_text.h"

#include <gtest/gtest.h>

using namespace iosphoto::test;
using namespace iosphoto::tool;

namespace {

constexpr UnixTime now = {1711841400}; // 2024-03-30 23:30 UTC, 2024-03-31 07:30 in Shanghai

std::string shown(const std::string &text)
{
    const auto span = parseTime(text, now);
    return span ? utcTimeText(span->first) + " " + utcTimeText(span->last) : "none";
}

struct WrittenTime
{
    std::string text;
    std::string span; ///< in UTC
};

std::ostream &operator<<(std::ostream &stream, const WrittenTime &time)
{
    return stream << time.text;
}

const WrittenTime times[] = {
    {"2023", "2023-01-01T00:00:00Z 2023-12-31T23:59:59Z"},
    {"2024-02", "2024-02-01T00:00:00Z 2024-02-29T23:59:59Z"},
    {"2023-12", "2023-12-01T00:00:00Z 2023-12-31T23:59:59Z"},
    {"2024-05-01", "2024-05-01T00:00:00Z 2024-05-01T23:59:59Z"},
    {"2024-05-01 12:30", "2024-05-01T12:30:00Z 2024-05-01T12:30:59Z"},
    {"2024-05-01T12:30:15Z", "2024-05-01T12:30:15Z 2024-05-01T12:30:15Z"},
    {"2024-05-01T12:30+02:00", "2024-05-01T10:30:00Z 2024-05-01T10:30:59Z"},
    {"now", "2024-03-30T23:30:00Z 2024-03-30T23:30:00Z"},
    {"today", "2024-03-30T00:00:00Z 2024-03-30T23:59:59Z"},
    {"yesterday", "2024-03-29T00:00:00Z 2024-03-29T23:59:59Z"},
    {"0d", "2024-03-30T00:00:00Z 2024-03-30T23:59:59Z"},
    {"7d", "2024-03-23T00:00:00Z 2024-03-23T23:59:59Z"},
    {"2w", "2024-03-16T00:00:00Z 2024-03-16T23:59:59Z"},
    {"1m", "2024-02-29T00:00:00Z 2024-02-29T23:59:59Z"}, // as there is no 30th
    {"100y", "1924-03-30T00:00:00Z 1924-03-30T23:59:59Z"},
};

} // namespace

class ParsedTime : public testing::TestWithParam<WrittenTime>
{
};

TEST_P(ParsedTime, IsFromItsFirstSecondToItsLast)
{
    EXPECT_EQ(shown(GetParam().text), GetParam().span);
}

INSTANTIATE_TEST_SUITE_P(Texts, ParsedTime, testing::ValuesIn(times),
                         [](const auto &tested) { return caseName(tested.param.text); });

TEST(ParsedTimes, AreLocalAndSoIsToday)
{
    const TimeZone zone("Asia/Shanghai");
    EXPECT_EQ(shown("2023"), "2022-12-31T16:00:00Z 2023-12-31T15:59:59Z");
    EXPECT_EQ(shown("today"), "2024-03-30T16:00:00Z 2024-03-31T15:59:59Z");
    EXPECT_EQ(shown("1m"), "2024-02-28T16:00:00Z 2024-02-29T15:59:59Z");
}

TEST(ParsedTimes, AreNothingElse)
{
    for (const char *text : {"", "0000", "-200", "20244", "2024-13", "2024-5", "2024-02-30", "d",
                             "7", "7D", "-7d", "7h", "99999d", "9999y", "tomorrow", "once"})
        EXPECT_EQ(shown(text), "none") << text;
}
