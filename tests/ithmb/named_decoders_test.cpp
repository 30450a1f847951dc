#include "support/cache_file.h"
#include "support/case_name.h"
#include "support/expected_bmp.h"
#include "support/sample_thumbs.h"
#include "support/thumb_calls.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <iterator>

using namespace iosphoto::test;

namespace {

std::vector<ThumbCase> fixedSizeCases()
{
    std::vector<ThumbCase> cases;
    std::copy_if(std::begin(thumbCases), std::end(thumbCases), std::back_inserter(cases),
                 [](const ThumbCase &thumbCase) { return thumbCase.format != 120; });
    return cases;
}

} // namespace

/// The decoder of a format, without the detection in front of it.
class NamedDecoder : public testing::TestWithParam<ThumbCase>
{
protected:
    static std::string record(int number = 0)
    {
        return sampleRecord(GetParam().format, {100, 80}, number);
    }
};

TEST_P(NamedDecoder, IsCalledWithSizeThenWidthThenHeight)
{
    const CacheFile cache(record());
    ifile file(cache.path().c_str());
    expectThumb(decoding(GetParam(), file, 0), expectedBmp(GetParam(), record()), 100, 80);
}

TEST_P(NamedDecoder, GivesAWholePictureOfTheFormatsSize)
{
    const auto side = static_cast<std::uint32_t>(GetParam().format);
    const CacheFile cache(sampleRecord(GetParam().format, {side, side}));
    ifile file(cache.path().c_str());
    std::string buffer(callersBuffer, '\0');
    ThumbSizes sizes;
    decoding(GetParam(), file, 0)(buffer.data(), sizes);
    EXPECT_EQ(sizes, (ThumbSizes{GetParam().imageBytes, GetParam().format, GetParam().format}));
}

TEST_P(NamedDecoder, OpenFileServesAnyRecordInAnyOrder)
{
    const CacheFile cache(record(0) + record(1) + record(2));
    ifile file(cache.path().c_str());
    for (const int index : {2, 0, 1, 1})
        expectThumbOf(record(index), GetParam(), decoding(GetParam(), file, index));
}

TEST_P(NamedDecoder, OnlyTheLowestBytesOfTheTrailersWordsCount)
{
    std::string bytes = record();
    setTrailerWord(bytes, 0, 0x164);
    setTrailerWord(bytes, 1, 0xFFFFFF50);
    setTrailerWord(bytes, 2, 0xFFFFFFFF);
    const CacheFile cache(bytes);
    ifile file(cache.path().c_str());
    expectThumb(decoding(GetParam(), file, 0), expectedBmp(GetParam(), record()), 100, 80);
}

TEST_P(NamedDecoder, NegativeIndexWhoseOffsetWrapsIntoTheFileIsDecoded)
{
    const CacheFile cache(record(0) + record(1));
    ifile file(cache.path().c_str());
    constexpr int quarter = 1 << 30;
    expectThumbOf(record(0), GetParam(), decoding(GetParam(), file, INT_MIN));
    expectThumbOf(record(1), GetParam(), decoding(GetParam(), file, -quarter + 1));
}

TEST_P(NamedDecoder, LastRecordBelow2GiBIsDecodedAndNoneAbove)
{
    const int last = INT_MAX / GetParam().recordSize();
    CacheFile cache;
    cache.write(std::int64_t{last} * GetParam().recordSize(), record(0) + record(1));
    ifile file(cache.path().c_str());
    expectThumbOf(record(0), GetParam(), decoding(GetParam(), file, last));
    expectNothing(decoding(GetParam(), file, last + 1));
}

TEST_P(NamedDecoder, FileThatIsNotOpenGivesNothing)
{
    ifile file("/nowhere/thumbs.ithmb");
    for (const int index : {0, 1, -1, INT_MIN})
        expectNothing(decoding(GetParam(), file, index));
}

TEST_P(NamedDecoder, NullBufferGivesNothing)
{
    const CacheFile cache(record());
    ifile file(cache.path().c_str());
    ThumbSizes sizes;
    decoding(GetParam(), file, 0)(nullptr, sizes);
    EXPECT_EQ(sizes, ThumbSizes());
}

TEST_P(NamedDecoder, FileThatIsRemovedWhileOpenIsDecoded)
{
    const CacheFile cache(record());
    ifile file(cache.path().c_str());
    ASSERT_TRUE(std::filesystem::remove(cache.path()));
    expectThumbOf(record(), GetParam(), decoding(GetParam(), file, 0));
}

INSTANTIATE_TEST_SUITE_P(Formats, NamedDecoder, testing::ValuesIn(thumbCases), NameOfCase());

class FixedSizeDecoder : public testing::TestWithParam<ThumbCase>
{
};

TEST_P(FixedSizeDecoder, GivesTheWholePictureWhateverTheTrailerStates)
{
    for (const ThumbSide side : {ThumbSide{0, 0}, {1, 255}, {255, 1}, {0, 130}}) {
        const std::string record = sampleRecord(GetParam().format, side);
        const CacheFile cache(record);
        ifile file(cache.path().c_str());
        const std::string image = expectedBmp(GetParam(), record);
        EXPECT_EQ(image.size(), static_cast<std::size_t>(GetParam().imageBytes));
        expectThumb(decoding(GetParam(), file, 0), image, static_cast<int>(side.width),
                    static_cast<int>(side.height));
    }
}

INSTANTIATE_TEST_SUITE_P(Formats, FixedSizeDecoder, testing::ValuesIn(fixedSizeCases()),
                         NameOfCase());

TEST(DecoderOf78, Index0GivesTheStoredSizesAndTheTopRowLast)
{
    const CacheFile cache(sampleRecord(78, {78, 78}));
    ifile file(cache.path().c_str());
    std::string image(12234, '\0');
    ThumbSizes sizes;
    decoding(thumbCases[0], file, 0)(image.data(), sizes);
    EXPECT_EQ(sizes.size, 12234);
    EXPECT_EQ(image.substr(0, 6), std::string("BM\x8A\xD7\0\0", 6)); // 55178
    EXPECT_EQ(image.substr(34, 4), std::string("\x48\xD7\0\0", 4));  // 55112
    EXPECT_EQ(image.substr(66 + 77 * 156), readFile(cache.path()).substr(0, 156));
    EXPECT_EQ(image.substr(66, 156), readFile(cache.path()).substr(77 * 160, 156));
}
