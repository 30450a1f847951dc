#include "support/cache_file.h"
#include "support/case_name.h"
#include "support/expected_bmp.h"
#include "support/guarded_buffer.h"
#include "support/little_endian.h"
#include "support/same_bytes.h"
#include "support/sample_thumbs.h"
#include "support/thumb_calls.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace iosphoto::test;

namespace {

const ThumbCase &format120 = thumbCases[1];

/// A record of format 120 that states this size, decoded into a large buffer.
struct Decoded
{
    Decoded(std::uint32_t width, std::uint32_t height) : record(sampleRecord(120, {width, height}))
    {
        const CacheFile cache(record);
        ifile file(cache.path().c_str());
        decoding(format120, file, 0)(image.data(), sizes);
    }

    std::string bytesOf(std::size_t from, std::size_t count) const
    {
        return image.substr(from, count);
    }
    std::string source(std::size_t row, std::size_t byte, std::size_t count) const
    {
        return record.substr(row * 240 + byte, count);
    }

    std::string record;
    std::string image = std::string(callersBuffer, '\0');
    ThumbSizes sizes;
};

/// Decodes a record that states any size, into memory that ends at `end` and is as large as the
/// image, and compares it with what is right.
testing::AssertionResult isRightOrNothing(const std::string &record, ifile &file, ThumbSide side,
                                          char *end)
{
    ThumbSizes expectedSizes;
    const std::optional<std::string> expected = expectedCentredBmp(record);
    const std::string_view image = expected ? *expected : std::string_view();
    if (expected)
        expectedSizes = {static_cast<int>(image.size()), static_cast<int>(side.width),
                         static_cast<int>(side.height)};
    char *const buffer = end - image.size();
    std::fill(buffer, end, GuardedBuffer::fill);
    ThumbSizes sizes;
    decoding(format120, file, 0)(buffer, sizes);
    if (!(sizes == expectedSizes))
        return testing::AssertionFailure() << sizes << ", expected " << expectedSizes;
    return sameBytes({buffer, image.size()}, image);
}

} // namespace

TEST(CentredThumb, Width100AndHeight80)
{
    const Decoded thumb(100, 80);
    EXPECT_EQ(thumb.sizes, (ThumbSizes{16066, 100, 80}));
    EXPECT_EQ(thumb.bytesOf(2, 4), littleEndian32(16066));
    EXPECT_EQ(thumb.bytesOf(18, 4), littleEndian32(100));
    EXPECT_EQ(thumb.bytesOf(22, 4), littleEndian32(80));
    EXPECT_EQ(thumb.bytesOf(34, 4), littleEndian32(55112));
    for (std::size_t row = 0; row < 80; ++row)
        ASSERT_EQ(thumb.bytesOf(66 + 200 * row, 200), thumb.source(99 - row, 20, 200)) << row;
}

TEST(CentredThumb, Width99HasRowsOf200BytesFromByte20)
{
    const Decoded thumb(99, 80);
    EXPECT_EQ(thumb.sizes, (ThumbSizes{16066, 99, 80}));
    EXPECT_EQ(thumb.bytesOf(18, 4), littleEndian32(99));
    for (std::size_t row = 0; row < 80; ++row)
        ASSERT_EQ(thumb.bytesOf(66 + 200 * row, 200), thumb.source(99 - row, 20, 200)) << row;
}

TEST(CentredThumb, OddHeightCopiesExactlyItsRowsFromTheFirstOn)
{
    const Decoded thumb(100, 81);
    EXPECT_EQ(thumb.sizes, (ThumbSizes{16266, 100, 81}));
    EXPECT_EQ(thumb.bytesOf(66, 200), thumb.source(99, 20, 200));
    EXPECT_EQ(thumb.bytesOf(66 + 200 * 80, 200), thumb.source(19, 20, 200));
    EXPECT_EQ(thumb.bytesOf(0, 66), expectedHeader(100, 81, 16266, 55112));
}

TEST(CentredThumb, WholeRecord)
{
    const Decoded thumb(120, 120);
    EXPECT_EQ(thumb.sizes, (ThumbSizes{28866, 120, 120}));
    EXPECT_EQ(thumb.bytesOf(66, 240), thumb.source(119, 0, 240));
    EXPECT_EQ(thumb.bytesOf(66 + 119 * 240, 240), thumb.source(0, 0, 240));
}

TEST(CentredThumb, WidthOver120RunsIntoTheRowsBesideIt)
{
    const Decoded thumb(130, 100);
    EXPECT_EQ(thumb.sizes, (ThumbSizes{26066, 130, 100}));
    EXPECT_EQ(thumb.bytesOf(66, 260), thumb.source(108, 230, 260));
    EXPECT_EQ(thumb.bytesOf(66 + 99 * 260, 260), thumb.source(9, 230, 260));
}

TEST(CentredThumb, WithoutWidthOrHeightThereIsTheHeaderAlone)
{
    for (const ThumbSide side : {ThumbSide{0, 0}, {0, 80}, {100, 0}, {255, 0}, {0, 120}}) {
        const Decoded thumb(side.width, side.height);
        const auto width = static_cast<int>(side.width);
        const auto height = static_cast<int>(side.height);
        EXPECT_EQ(thumb.sizes, (ThumbSizes{66, width, height}));
        EXPECT_EQ(thumb.bytesOf(0, 66), expectedHeader(width, height, 66, 55112));
        EXPECT_EQ(thumb.bytesOf(66, 200), std::string(200, '\0'));
    }
}

class UndecodableThumb : public testing::TestWithParam<ThumbSide>
{
};

TEST_P(UndecodableThumb, LeavesBufferAndVariablesAlone)
{
    const CacheFile cache(sampleRecord(120, GetParam()));
    for (const ThumbFunction &function : thumbFunctions)
        expectNothing(function.decoding(format120, cache.path(), 0));
}

INSTANTIATE_TEST_SUITE_P(Sizes, UndecodableThumb,
                         testing::Values(ThumbSide{100, 121}, // higher than the record
                                         ThumbSide{100, 254}, //
                                         ThumbSide{0, 121},   //
                                         ThumbSide{121, 120}, // begins before the record
                                         ThumbSide{122, 119}, //
                                         ThumbSide{254, 118}, // larger than a caller's buffer
                                         ThumbSide{254, 109}),
                         NameOfCase());

TEST(CentredThumb, LargestImageThatFitsIsDecoded)
{
    EXPECT_EQ(Decoded(254, 108).sizes, (ThumbSizes{54930, 254, 108}));
    EXPECT_EQ(Decoded(254, 109).sizes, ThumbSizes());
    EXPECT_EQ(Decoded(236, 116).sizes, (ThumbSizes{54818, 236, 116}));
    EXPECT_EQ(Decoded(236, 117).sizes, ThumbSizes());
}

TEST(CentredThumb, OfEverySizeIsRightOrNothing)
{
    std::string record = sampleRecord(120, {0, 0});
    CacheFile cache;
    ifile file(cache.path().c_str());
    GuardedBuffer buffer(callersBuffer, Guard::Behind);
    for (std::uint32_t width = 0; width <= 255; ++width)
        for (std::uint32_t height = 0; height <= 255; ++height) {
            setTrailerWord(record, 0, width);
            setTrailerWord(record, 1, height);
            cache.write(0, record);
            ASSERT_TRUE(isRightOrNothing(record, file, {width, height}, buffer.end()))
                << width << " x " << height;
        }
}
