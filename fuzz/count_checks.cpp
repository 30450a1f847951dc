#include "ithmb/ithmb.h"
#include "ithmb/thumb_formats.h"
#include "require.h"
#include "thumb_cache.h"

#include <limits>

namespace iosphoto::fuzz {

namespace {

using Int = std::numeric_limits<int>;

constexpr int runAtEnd = 17; ///< empty records that end a count
constexpr int manyRecords = 256;
constexpr int unset = -1;

/// Records from record 1 on that start within the file.
int recordsToCount(const ThumbCache &cache, int recordSize)
{
    return recordSize > 0 && cache.size() > 0 ? (cache.size() - 1) / recordSize : 0;
}

void checkCount(const ThumbCache &cache, int recordSize)
{
    const int records = recordsToCount(cache, recordSize);
    if (records > manyRecords) // each is read: it would only take time
        return;
    ifile file(cache.path.c_str());
    int last = unset;
    const int count = estimate_count(recordSize, file, last);
    require(count >= 0 && count <= records, "only records of the file are counted");
    require(last >= count + runAtEnd, "a run of empty records follows the counted ones");
    require(last <= records + runAtEnd, "the count ends soon after the file");
}

int countedRecordSize(const ThumbCache &cache)
{
    ifile file(cache.path.c_str());
    const ThumbFormat *format = findThumbFormat(detect_ithmb_size(file, 2));
    return format != nullptr && format->isCounted ? format->recordSize : 0;
}

void checkCountOfBmps(const ThumbCache &cache)
{
    int last = unset;
    const int count = get_bmp_count(cache.path.c_str(), last);
    int expectedLast = unset;
    int expected = 0;
    if (const int recordSize = countedRecordSize(cache)) {
        ifile file(cache.path.c_str());
        expected = estimate_count(recordSize, file, expectedLast);
    }
    require(count == expected && last == expectedLast, "a cache is counted in its format");
}

} // namespace

void checkCounting(const ThumbCache &cache)
{
    for (const ThumbFormat &format : thumbFormats)
        checkCount(cache, format.recordSize);
    for (const int size : {Int::min(), -1, 0, 1, 16, 997, Int::max(), cache.chosenNumber()})
        checkCount(cache, size);
    checkCountOfBmps(cache);
}

} // namespace iosphoto::fuzz
