#include "ithmb/ithmb.h"
#include "support/cache_file.h"

#include <gtest/gtest.h>

#include <climits>

using namespace iosphoto::test;

namespace {

constexpr int recordSize = 16;
constexpr int untouched = -77;

struct Count
{
    int count;
    int lastIndex;

    bool operator==(const Count &other) const
    {
        return count == other.count && lastIndex == other.lastIndex;
    }
};

std::ostream &operator<<(std::ostream &stream, const Count &count)
{
    return stream << count.count << " up to " << count.lastIndex;
}

Count countIn(const CacheFile &cache, int size)
{
    ifile file(cache.path().c_str());
    Count count = {untouched, untouched};
    count.count = estimate_count(size, file, count.lastIndex);
    return count;
}

/// A record for each letter: 'x' has content, '-' is empty.
std::string records(const std::string &pattern)
{
    std::string bytes;
    for (const char letter : pattern)
        bytes += std::string(recordSize, letter == 'x' ? 'x' : '\0');
    return bytes;
}

Count countOf(const std::string &bytes)
{
    return countIn(CacheFile(bytes), recordSize);
}

std::string empties(std::size_t count)
{
    return std::string(count, '-');
}

} // namespace

TEST(ThumbCount, CountsUpTo17EmptyRecordsInARow)
{
    EXPECT_EQ(countOf(records("xxxxxx" + empties(17))), (Count{5, 22}));
    EXPECT_EQ(countOf(records("xxxxxx" + empties(40))), (Count{5, 22}));
    EXPECT_EQ(countOf(records("xx" + empties(17))), (Count{1, 18}));
}

TEST(ThumbCount, NeverCountsRecord0)
{
    EXPECT_EQ(countOf(records("x" + empties(17))), (Count{0, 17}));
    EXPECT_EQ(countOf(records("-x" + empties(17))), (Count{1, 18}));
    EXPECT_EQ(countOf(records("xx" + empties(17))), (Count{1, 18}));
}

TEST(ThumbCount, Runs16EmptyRecordsLongEndNothing)
{
    EXPECT_EQ(countOf(records("xx" + empties(16) + "x" + empties(17))), (Count{2, 35}));
    EXPECT_EQ(countOf(records("x" + empties(16) + "x" + empties(17))), (Count{1, 34}));
    EXPECT_EQ(countOf(records("xx--x-x" + empties(16) + "x" + empties(17))), (Count{4, 40}));
}

TEST(ThumbCount, RecordsBehind17EmptyOnesAreNotSeen)
{
    EXPECT_EQ(countOf(records("xx" + empties(17) + "xxx")), (Count{1, 18}));
    EXPECT_EQ(countOf(records("x" + empties(17) + "xxx")), (Count{0, 17}));
}

TEST(ThumbCount, EachOfTheFirst12BytesIsContentAndNoOther)
{
    for (std::size_t at = 0; at < recordSize; ++at) {
        std::string bytes = records("x" + empties(18));
        bytes[recordSize + at] = '\x80';
        EXPECT_EQ(countOf(bytes), at < 12 ? (Count{1, 18}) : (Count{0, 17})) << at;
    }
}

TEST(ThumbCount, FileThatEndsBehindTheLastRecordCountsAsOneWithTrailingEmptyRecords)
{
    EXPECT_EQ(countOf(records("xxxxxx")), (Count{5, 22}));
    EXPECT_EQ(countOf(records("xxxxxx-")), (Count{5, 22}));
    EXPECT_EQ(countOf(records("xxxxxx" + empties(16))), (Count{5, 22}));
    EXPECT_EQ(countOf(records("x")), (Count{0, 17}));
    EXPECT_EQ(countOf(""), (Count{0, 17}));
}

TEST(ThumbCount, BytesThatARecordLacksAreZero)
{
    std::string whole = records("xx-x");
    whole.replace(3 * recordSize, 12, "\0\0\0\0\0\0x\0\0\0\0\0", 12);
    CacheFile cache(whole);
    for (auto length = static_cast<int>(whole.size()); length >= 0; --length) {
        cache.resize(length);
        const Count cut = countIn(cache, recordSize);
        cache.resize(30 * recordSize);
        EXPECT_EQ(cut, countIn(cache, recordSize)) << length;
        EXPECT_EQ(cut.count, (length > 16 ? 1 : 0) + (length > 54 ? 1 : 0)) << length;
    }
}

TEST(ThumbCount, RecordsOfOneByteOverlap)
{
    std::string bytes(100, '\0');
    bytes[20] = 'x';
    EXPECT_EQ(countIn(CacheFile(bytes), 1), (Count{12, 37})); // in records 9 to 20
}

TEST(ThumbCount, EndsWithAnyRecordSize)
{
    const CacheFile cache(std::string(100, 'x'));
    for (const int size : {0, -1, -16, INT_MIN, 100, INT_MAX})
        EXPECT_EQ(countIn(cache, size), (Count{0, 17})) << size;
}

TEST(ThumbCount, FileThatIsNotOpenIsEmpty)
{
    ifile file("/nowhere/thumbs.ithmb");
    int lastIndex = untouched;
    EXPECT_EQ(estimate_count(recordSize, file, lastIndex), 0);
    EXPECT_EQ(lastIndex, 17);
}

TEST(ThumbCount, DoesNotDependOnWhereTheFileStands)
{
    const CacheFile cache(records("xxx"));
    ifile file(cache.path().c_str());
    ASSERT_EQ(file.seekg(40), 0);
    for (int i = 0; i < 2; ++i) {
        int lastIndex = untouched;
        EXPECT_EQ(estimate_count(recordSize, file, lastIndex), 2);
        EXPECT_EQ(lastIndex, 19);
    }
}

TEST(ThumbCount, CountsInAFileBeyond2GiB)
{
    constexpr int thumbs = 2400;
    constexpr int distance = 17; // 16 empty records between two thumbnails
    constexpr std::int64_t bytes = std::int64_t{thumbs} * distance * 55804;
    static_assert(bytes > INT_MAX);
    CacheFile cache;
    for (std::int64_t i = 1; i <= thumbs; ++i)
        cache.write(i * distance * 55804, "x");
    EXPECT_EQ(countIn(cache, 55804), (Count{thumbs, thumbs * distance + 17}));
}
