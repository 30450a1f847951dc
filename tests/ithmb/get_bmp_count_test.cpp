#include "ithmb/ithmb.h"
#include "support/cache_file.h"
#include "support/case_name.h"
#include "support/sample_thumbs.h"
#include "support/thumb_case.h"

#include <gtest/gtest.h>

using namespace iosphoto::test;

namespace {

constexpr int untouched = -77;

/// A cache whose records 1 to 5 have content, and 17 empty ones behind them.
std::string cacheOf5(int format)
{
    ThumbCacheBuilder cache(format);
    cache.empty();
    for (int number = 1; number <= 5; ++number)
        cache.thumbnail(100, 80, differingPixels(number));
    return cache.empty(17).bytes();
}

bool isCounted(const ThumbCase &thumbCase)
{
    return thumbCase.format != 125 && thumbCase.format != 128;
}

void expectCount(const CacheFile &cache, int count, int lastIndex)
{
    int found = untouched;
    EXPECT_EQ(get_bmp_count(cache.path().c_str(), found), count);
    EXPECT_EQ(found, lastIndex);
}

} // namespace

class GetBmpCount : public testing::TestWithParam<ThumbCase>
{
};

TEST_P(GetBmpCount, CountsTheFormatsThatAreCounted)
{
    const CacheFile cache(cacheOf5(GetParam().format));
    if (isCounted(GetParam()))
        expectCount(cache, 5, 22);
    else
        expectCount(cache, 0, untouched);
}

TEST_P(GetBmpCount, JudgesTheFormatByRecord2)
{
    const int format = GetParam().format;
    const std::string thumb = sampleRecord(format, {100, 80});
    const std::string noTrailer = sampleRecord(format, {0, 0});
    expectCount(CacheFile(thumb + thumb + noTrailer + thumb), 0, untouched);
    if (isCounted(GetParam()))
        expectCount(CacheFile(noTrailer + noTrailer + thumb + noTrailer), 3, 20);
}

INSTANTIATE_TEST_SUITE_P(Formats, GetBmpCount, testing::ValuesIn(thumbCases), NameOfCase());

TEST(CountOfFormat166, Records1To5Give5And22)
{
    expectCount(CacheFile(cacheOf5(166)), 5, 22);
}

TEST(CountOfFormat166, FileThatEndsBehindRecord5CountsTheSame)
{
    const std::string cache = cacheOf5(166);
    expectCount(CacheFile(cache.substr(0, 6 * 55804)), 5, 22);
    expectCount(CacheFile(cache.substr(0, 5 * 55804 + 100)), 5, 22);
    expectCount(CacheFile(cache.substr(0, 5 * 55804)), 4, 21);
}

TEST(CountOfFormat166, LastIndexIsLeftAloneWhereTheFormatIsNotFound)
{
    const std::string twoRecords = sampleRecord(166, {100, 80}) + sampleRecord(166, {100, 80});
    expectCount(CacheFile(twoRecords), 0, untouched);
}
