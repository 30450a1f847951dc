#include "ithmb/ithmb.h"
#include "support/cache_file.h"
#include "support/case_name.h"
#include "support/file_use.h"
#include "support/sample_thumbs.h"
#include "support/thumb_calls.h"

#include <gtest/gtest.h>

using namespace iosphoto::test;

namespace {

constexpr int probes = 7;
constexpr int probeSize = 12;

void callGetBmp(const CacheFile &cache, int index)
{
    static char buffer[callersBuffer];
    ThumbSizes sizes;
    GetBmp(cache.path().c_str(), index, buffer, sizes.size, sizes.width, sizes.height);
}

} // namespace

class ThumbReadingCost : public testing::TestWithParam<ThumbCase>
{
protected:
    void SetUp() override
    {
        const CacheFile known(std::string(1000, 'x'));
        ifile file(known.path().c_str());
        char buffer[1000];
        if (bytesReadBy([&] { file.read(buffer, sizeof buffer); }) != 1000)
            GTEST_SKIP() << "this system does not tell what a process reads";
    }

    static std::string thumb() { return sampleRecord(GetParam().format, {100, 80}); }
};

TEST_P(ThumbReadingCost, IsTheRecordAndTheProbes)
{
    const CacheFile cache(thumb() + thumb() + thumb());
    for (const int index : {0, 1, 2}) {
        const auto bytes = bytesReadBy([&] { callGetBmp(cache, index); });
        ASSERT_TRUE(bytes.has_value());
        EXPECT_GE(*bytes, GetParam().recordSize());
        EXPECT_LE(*bytes, GetParam().recordSize() + probes * probeSize);
    }
}

TEST_P(ThumbReadingCost, DoesNotGrowWithTheFile)
{
    constexpr int far = 30000;
    CacheFile small(thumb());
    CacheFile large;
    large.write(std::int64_t{far} * GetParam().recordSize(), thumb());
    large.resize(4'000'000'000);
    const auto inSmall = bytesReadBy([&] { callGetBmp(small, 0); });
    const auto inLarge = bytesReadBy([&] { callGetBmp(large, far); });
    ASSERT_TRUE(inSmall.has_value() && inLarge.has_value());
    EXPECT_GE(*inLarge, GetParam().recordSize());
    EXPECT_LE(*inLarge, GetParam().recordSize() + probes * probeSize);
    EXPECT_LE(*inSmall, GetParam().recordSize() + probes * probeSize);
}

TEST_P(ThumbReadingCost, WithoutAFormatIsTheProbes)
{
    const CacheFile cache(std::string(200000, 'x'));
    const auto bytes = bytesReadBy([&] { callGetBmp(cache, 1); });
    ASSERT_TRUE(bytes.has_value());
    EXPECT_LE(*bytes, probes * probeSize);
}

INSTANTIATE_TEST_SUITE_P(Formats, ThumbReadingCost, testing::ValuesIn(thumbCases), NameOfCase());

TEST(ThumbOpeningCost, IsOneOpening)
{
    const CacheFile cache(sampleRecord(157, {100, 80}));
    const OpeningsOfFile openings(cache.path());
    if (!openings.isPossible())
        GTEST_SKIP() << "this system does not tell who opens a file";
    callGetBmp(cache, 0);
    EXPECT_EQ(openings.count(), 1);
    callGetBmp(cache, 0);
    callGetBmp(cache, 5); // where nothing is
    EXPECT_EQ(openings.count(), 3);
}
