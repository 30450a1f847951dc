#include "ithmb/ithmb.h"
#include "support/cache_file.h"
#include "support/case_name.h"
#include "support/little_endian.h"
#include "support/sample_thumbs.h"
#include "support/thumb_case.h"

#include <gtest/gtest.h>

#include <climits>

using namespace iosphoto::test;

namespace {

constexpr int probeSize = 12;

std::string trailer(std::uint32_t width, std::uint32_t height, std::uint32_t third = 0)
{
    return littleEndian(width, 4) + littleEndian(height, 4) + littleEndian(third, 4);
}

bool detectType(const std::string &bytes, int endOffset)
{
    const CacheFile cache(bytes);
    ifile file(cache.path().c_str());
    return detect_type(endOffset, file);
}

bool isPlausible(const std::string &trailerBytes)
{
    return detectType(trailerBytes, probeSize);
}

int detect(const CacheFile &cache, int index)
{
    ifile file(cache.path().c_str());
    return detect_ithmb_size(file, index);
}

/// Puts a plausible trailer where record `index` ends in this format.
void markAs(const ThumbCase &thumbCase, int index, CacheFile &cache)
{
    cache.write((index + 1) * thumbCase.recordSize() - probeSize, trailer(100, 80));
}

} // namespace

TEST(TrailerProbe, SidesFrom1To254ArePlausible)
{
    EXPECT_TRUE(isPlausible(trailer(1, 1)));
    EXPECT_TRUE(isPlausible(trailer(254, 254)));
    EXPECT_TRUE(isPlausible(trailer(1, 254)));
    for (const std::uint32_t side : {0U, 255U, 256U, 257U, 0x10001U, 0x80000001U, 0xFFFFFFFFU}) {
        EXPECT_FALSE(isPlausible(trailer(side, 80))) << side;
        EXPECT_FALSE(isPlausible(trailer(100, side))) << side;
    }
}

TEST(TrailerProbe, Width255OrHeight0IsNotPlausible)
{
    EXPECT_FALSE(isPlausible(trailer(255, 80)));
    EXPECT_FALSE(isPlausible(trailer(100, 0)));
}

TEST(TrailerProbe, EveryByteOfTheThirdWordIsZero)
{
    ASSERT_TRUE(isPlausible(trailer(100, 80, 0)));
    for (const std::uint32_t third : {1U, 0x100U, 0x10000U, 0x1000000U, 0x80000000U})
        EXPECT_FALSE(isPlausible(trailer(100, 80, third))) << third;
}

TEST(TrailerProbe, LiesRightInFrontOfTheOffset)
{
    const CacheFile cache("pixels.." + trailer(100, 80) + "pixels..");
    ifile file(cache.path().c_str());
    for (int end = 0; end <= 40; ++end)
        EXPECT_EQ(detect_type(end, file), end == 20) << end;
}

TEST(TrailerProbe, OffsetsWithoutTwelveBytesInFrontAreNotPlausible)
{
    for (const int end : {11, 1, 0, -1, INT_MIN, INT_MAX})
        EXPECT_FALSE(detectType(trailer(100, 80), end)) << end;
}

TEST(TrailerProbe, ShortProbeIsNotPlausibleEvenWhenTheMissingBytesWouldBe)
{
    for (std::size_t length = 0; length < probeSize; ++length)
        EXPECT_FALSE(isPlausible(trailer(100, 80).substr(0, length))) << length;
}

TEST(TrailerProbe, FileThatIsNotOpenIsNotPlausible)
{
    ifile file("/nowhere/thumbs.ithmb");
    EXPECT_FALSE(detect_type(probeSize, file));
    EXPECT_EQ(detect_ithmb_size(file, 0), 0);
}

class FormatDetection : public testing::TestWithParam<ThumbCase>
{
};

TEST_P(FormatDetection, FindsTheFormatByEachRecordThatHasATrailer)
{
    const int format = GetParam().format;
    const std::string thumb = sampleRecord(format, {100, 80});
    const std::string empty(thumb.size(), '\0');
    const CacheFile cache(thumb + empty + thumb);
    EXPECT_EQ(detect(cache, 0), format);
    EXPECT_EQ(detect(cache, 1), 0);
    EXPECT_EQ(detect(cache, 2), format);
    EXPECT_EQ(detect(cache, 3), 0);
}

TEST_P(FormatDetection, FindsNothingInARecordThatLacksItsLastByte)
{
    const std::string thumb = sampleRecord(GetParam().format, {100, 80});
    EXPECT_EQ(detect(CacheFile(thumb), 0), GetParam().format);
    EXPECT_EQ(detect(CacheFile(thumb.substr(0, thumb.size() - 1)), 0), 0);
}

TEST_P(FormatDetection, EndOfTheRecordWrapsAt32Bits)
{
    const CacheFile cache(sampleRecord(GetParam().format, {100, 80}));
    constexpr int quarter = 1 << 30; // times a multiple of four is no offset at all
    EXPECT_EQ(detect(cache, quarter), GetParam().format);
    EXPECT_EQ(detect(cache, -quarter), GetParam().format);
    EXPECT_EQ(detect(cache, INT_MIN), GetParam().format);
    for (const int index : {-1, -2, INT_MAX, INT_MAX / GetParam().recordSize()})
        EXPECT_EQ(detect(cache, index), 0) << index;
}

INSTANTIATE_TEST_SUITE_P(Formats, FormatDetection, testing::ValuesIn(thumbCases), NameOfCase());

TEST(FormatsInOneFile, EachRecordIsJudgedByItself)
{
    CacheFile cache;
    markAs(thumbCases[0], 0, cache);
    markAs(thumbCases[1], 1, cache);
    EXPECT_EQ(detect(cache, 0), 78);
    EXPECT_EQ(detect(cache, 1), 120);
}

TEST(FormatsInOneFile, Record2PlausibleAs125AndAs166Is166)
{
    CacheFile cache;
    cache.write(3 * 32028 - probeSize, trailer(125, 125));
    ASSERT_EQ(detect(cache, 2), 125);
    cache.write(3 * 55804 - probeSize, trailer(166, 166));
    EXPECT_EQ(detect(cache, 2), 166);
}

TEST(FormatsInOneFile, OfTwoThatMatchTheLastOneProbedCounts)
{
    for (const ThumbCase &earlier : thumbCases)
        for (const ThumbCase *later = &earlier + 1; later != std::end(thumbCases); ++later) {
            CacheFile cache;
            markAs(earlier, 2, cache);
            markAs(*later, 2, cache);
            EXPECT_EQ(detect(cache, 2), later->format) << earlier.format;
        }
}

TEST(FormatsInOneFile, OfAllTheLastOneProbedCounts)
{
    CacheFile cache;
    for (const ThumbCase &thumbCase : thumbCases) {
        markAs(thumbCase, 2, cache);
        EXPECT_EQ(detect(cache, 2), thumbCase.format);
    }
}
