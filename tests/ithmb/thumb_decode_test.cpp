#include "support/cache_file.h"
#include "support/expected_bmp.h"
#include "support/guarded_buffer.h"
#include "support/same_bytes.h"
#include "support/sample_thumbs.h"
#include "support/thumb_calls.h"

#include <gtest/gtest.h>

#include <climits>

using namespace iosphoto::test;

namespace {

constexpr int quarter = 1 << 30; // times a record size, a multiple of four, is 0 in 32 bits

/// The index whose product with the format's record size is 4 in 32 bits.
int indexOfByte4(const ThumbCase &thumbCase)
{
    const auto factor = static_cast<std::uint32_t>(thumbCase.recordSize() / 4);
    std::uint32_t inverse = factor; // right in the lowest 3 bits, then in twice as many each time
    for (int i = 0; i < 4; ++i)
        inverse *= 2 - factor * inverse;
    return static_cast<int>(inverse % quarter);
}

struct NameOfFormatAndFunction
{
    template <typename Info>
    std::string operator()(const Info &info) const
    {
        return std::get<ThumbCase>(info.param).name() + std::get<ThumbFunction>(info.param).name;
    }
};

} // namespace

/// A format and a function that decodes it.
class ThumbDecode : public testing::TestWithParam<std::tuple<ThumbCase, ThumbFunction>>
{
protected:
    static const ThumbCase &thumbCase() { return std::get<ThumbCase>(GetParam()); }

    static ThumbCall decoding(const CacheFile &cache, int index)
    {
        return std::get<ThumbFunction>(GetParam()).decoding(thumbCase(), cache.path(), index);
    }
};

TEST_P(ThumbDecode, GivesEveryRecordOfACacheBitForBit)
{
    const std::vector<std::string> records = sampleRecords(thumbCase().format);
    const CacheFile cache(joined(records));
    for (std::size_t index = 0; index < records.size(); ++index) {
        SCOPED_TRACE(testing::Message() << "record " << index);
        expectThumbOf(records[index], thumbCase(), decoding(cache, static_cast<int>(index)));
    }
}

TEST_P(ThumbDecode, LeavesTheBytesBehindTheImageAlone)
{
    const std::string record = sampleRecord(thumbCase().format, {50, 40});
    std::string expected = expectedBmp(thumbCase(), record);
    expected.resize(callersBuffer + 1, GuardedBuffer::fill);

    GuardedBuffer buffer(expected.size(), Guard::Behind);
    ThumbSizes ignored;
    decoding(CacheFile(record), 0)(buffer.data(), ignored);

    EXPECT_TRUE(sameBytes(buffer.bytes(), expected));
}

TEST_P(ThumbDecode, GivesNothingForARecordBeyondTheEnd)
{
    const CacheFile cache(sampleRecord(thumbCase().format, {100, 80}) + "rest");
    for (const int index : {2, 1000, INT_MAX / thumbCase().recordSize()})
        expectNothing(decoding(cache, index));
}

TEST_P(ThumbDecode, GivesNothingForAnOffsetBelowZero)
{
    const CacheFile cache(joined(sampleRecords(thumbCase().format)));
    for (const int index : {-1, -2, INT_MAX, INT_MAX / thumbCase().recordSize() + 1})
        expectNothing(decoding(cache, index));
}

TEST_P(ThumbDecode, OffsetWrapsAt32Bits)
{
    const std::vector<std::string> records = sampleRecords(thumbCase().format);
    const CacheFile cache(joined(records));
    expectThumbOf(records[0], thumbCase(), decoding(cache, quarter));
    expectThumbOf(records[1], thumbCase(), decoding(cache, quarter + 1));

    const CacheFile shifted("four" + records[2]);
    const int index = indexOfByte4(thumbCase());
    ASSERT_GT(index, 0);
    expectThumbOf(records[2], thumbCase(), decoding(shifted, index));
}

TEST_P(ThumbDecode, LeavesEveryByteOfTheFileAlone)
{
    const std::string bytes = joined(sampleRecords(thumbCase().format));
    const CacheFile cache(bytes);
    const auto written = std::filesystem::last_write_time(cache.path());
    std::string buffer(callersBuffer, '\0');
    ThumbSizes sizes;
    decoding(cache, 2)(buffer.data(), sizes);
    ASSERT_FALSE(sizes == ThumbSizes());
    EXPECT_TRUE(sameBytes(readFile(cache.path()), bytes));
    EXPECT_EQ(std::filesystem::last_write_time(cache.path()), written);
}

INSTANTIATE_TEST_SUITE_P(FormatsAndFunctions, ThumbDecode,
                         testing::Combine(testing::ValuesIn(thumbCases),
                                          testing::ValuesIn(thumbFunctions)),
                         NameOfFormatAndFunction());
