#include "ios_photo.h"
#include "support/cache_file.h"
#include "support/expected_bmp.h"
#include "support/sample_thumbs.h"
#include "support/thumb_calls.h"

#include <gtest/gtest.h>

#include <atomic>
#include <climits>
#include <thread>
#include <type_traits>

using namespace iosphoto::test;

namespace {

/// The call with these arguments, which is to return `result`.
ThumbCall getThumb(const char *path, int index, int result)
{
    return [=](char *buffer, ThumbSizes &sizes) {
        EXPECT_EQ(ios_photo_get_thumb(path, index, buffer, sizes.width, sizes.height, sizes.size),
                  result);
    };
}

} // namespace

TEST(GetThumb, TakesWidthThenHeightThenSize)
{
    static_assert(std::is_same_v<decltype(&ios_photo_get_thumb),
                                 int (*)(const char *, int, char *, int &, int &, int &)>);
    const std::string record = sampleRecord(157, {100, 80});
    const CacheFile cache(record);
    std::string buffer(callersBuffer, '\0');
    int fourth = 0;
    int fifth = 0;
    int sixth = 0;
    EXPECT_EQ(ios_photo_get_thumb(cache.path().c_str(), 0, buffer.data(), fourth, fifth, sixth), 0);
    EXPECT_EQ(fourth, 100);
    EXPECT_EQ(fifth, 80);
    EXPECT_EQ(sixth, 49678);
}

TEST(GetThumb, NegativeIndexIsRefused)
{
    const CacheFile cache(sampleRecord(157, {100, 80}));
    for (const int index : {-1, -2, -(1 << 30), INT_MIN}) // the last two wrap to record 0
        expectNothing(getThumb(cache.path().c_str(), index, -1));
}

TEST(GetThumb, NullFileNameIsRefused)
{
    expectNothing(getThumb(nullptr, 0, -1));
}

TEST(GetThumb, NullBufferIsRefused)
{
    const CacheFile cache(sampleRecord(157, {100, 80}));
    ThumbSizes sizes;
    getThumb(cache.path().c_str(), 0, -1)(nullptr, sizes);
    EXPECT_EQ(sizes, ThumbSizes());
}

TEST(GetThumb, MissingFileIsNoFailure)
{
    const TemporaryFolder folder;
    const std::string path = (folder / "none.ithmb").string();
    expectNothing(getThumb(path.c_str(), 0, 0));
    EXPECT_FALSE(exists(folder / "none.ithmb"));
}

TEST(GetThumb, RecordThatIsEmptyOrNotThereIsNoFailure)
{
    const std::string record = sampleRecord(157, {100, 80});
    const CacheFile cache(record + std::string(record.size(), '\0'));
    for (const int index : {1, 2, 3, 1000, INT_MAX})
        expectNothing(getThumb(cache.path().c_str(), index, 0));
}

TEST(GetThumb, ThreadsThatReadOneCacheGetTheSameBytes)
{
    const std::vector<std::string> records = sampleRecords(158);
    const CacheFile cache(joined(records));
    std::atomic<bool> start{false};
    const auto readAll = [&] {
        while (!start)
            std::this_thread::yield();
        for (int reading = 0; reading < 20; ++reading)
            for (std::size_t i = 0; i < records.size(); ++i)
                expectThumbOf(records[i], thumbCases[4],
                              getThumb(cache.path().c_str(), static_cast<int>(i), 0));
    };
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back(readAll);
    start = true;
    for (std::thread &thread : threads)
        thread.join();
}
