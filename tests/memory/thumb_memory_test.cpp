#include "memory/failing_allocation.h"
#include "support/cache_file.h"
#include "support/case_name.h"
#include "support/next_descriptor.h"
#include "support/sample_thumbs.h"
#include "support/thumb_calls.h"

#include <gtest/gtest.h>

using namespace iosphoto::test;

namespace {

constexpr int untouched = -77;

/// Makes one malloc of a call after the other fail, until the call needs no more of them, and
/// expects that it never leaves a file open.
/// @param afterFailure  checks what such a call did
/// @return how many there were
template <typename Call, typename Check>
int failEachMalloc(const Call &call, const Check &afterFailure)
{
    const int descriptor = nextDescriptor();
    for (int failures = 0;; ++failures) {
        SCOPED_TRACE(testing::Message() << "malloc " << failures + 1);
        bool hasFailed = false;
        {
            const FailingMalloc failing(failures + 1);
            call();
            hasFailed = failing.hasFailed();
        }
        EXPECT_EQ(nextDescriptor(), descriptor);
        if (!hasFailed)
            return failures;
        afterFailure();
    }
}

constexpr int streamAlone = 1;

} // namespace

class ThumbMemory : public testing::TestWithParam<ThumbCase>
{
protected:
    void SetUp() override
    {
        if (!FailingMalloc::isPossible())
            GTEST_SKIP() << "malloc cannot be replaced here";
    }

    static std::string thumb() { return sampleRecord(GetParam().format, {100, 80}); }

    /// Calls a function that decodes, each of its mallocs failing once.
    void expectTheStreamAlone(const ThumbFunction &function)
    {
        const ThumbCall call = function.decoding(GetParam(), cache_.path(), 1);
        ThumbSizes sizes;
        std::string buffer(callersBuffer, '.');
        const int blocks = failEachMalloc([&] { call(buffer.data(), sizes); },
                                          [&] {
                                              EXPECT_EQ(sizes, ThumbSizes());
                                              EXPECT_EQ(buffer, std::string(callersBuffer, '.'));
                                          });
        EXPECT_EQ(blocks, streamAlone);
        EXPECT_EQ(sizes.width, 100);
    }

    const CacheFile cache_ = CacheFile(thumb() + thumb() + thumb());
};

TEST_P(ThumbMemory, DecodingAllocatesTheStreamAloneAndFailsAsAMissingFile)
{
    for (const ThumbFunction &function : thumbFunctions) {
        SCOPED_TRACE(function.name);
        expectTheStreamAlone(function);
    }
}

TEST_P(ThumbMemory, CountingAllocatesTheStreamAloneAndFailsAsAMissingFile)
{
    int count = untouched;
    int lastIndex = untouched;
    const int blocks =
        failEachMalloc([&] { count = get_bmp_count(cache_.path().c_str(), lastIndex); },
                       [&] {
                           EXPECT_EQ(count, 0);
                           EXPECT_EQ(lastIndex, untouched);
                       });
    EXPECT_EQ(blocks, streamAlone);
    const bool isCounted = GetParam().format != 125 && GetParam().format != 128;
    EXPECT_EQ(count, isCounted ? 2 : 0);
}

INSTANTIATE_TEST_SUITE_P(Formats, ThumbMemory, testing::ValuesIn(thumbCases), NameOfCase());

TEST(ThumbFileMemory, FileThatCouldNotBeAllocatedIsNotOpen)
{
    if (!FailingMalloc::isPossible())
        GTEST_SKIP() << "malloc cannot be replaced here";
    const CacheFile cache("x");
    bool isOpen = false;
    const auto open = [&] { isOpen = ifile(cache.path().c_str()).is_open(); };
    EXPECT_EQ(failEachMalloc(open, [&] { EXPECT_FALSE(isOpen); }), streamAlone);
    EXPECT_TRUE(isOpen);
}

TEST(ThumbCountMemory, DoesNotGrowWithTheFile)
{
    if (!FailingMalloc::isPossible())
        GTEST_SKIP() << "malloc cannot be replaced here";
    constexpr int recordSize = 55804;
    constexpr int thumbs = 3000;
    CacheFile cache;
    for (std::int64_t i = 1; i <= thumbs; ++i)
        cache.write(i * 16 * recordSize, "x");
    ifile file(cache.path().c_str());
    int lastIndex = untouched;
    const int blocks = failEachMalloc(
        [&] { EXPECT_EQ(estimate_count(recordSize, file, lastIndex), thumbs); }, [] {});
    EXPECT_EQ(blocks, 0);
}
