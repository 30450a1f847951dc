#include "support/cache_file.h"
#include "support/case_name.h"
#include "support/expected_bmp.h"
#include "support/sample_thumbs.h"
#include "support/thumb_calls.h"

#include <gtest/gtest.h>

using namespace iosphoto::test;

/// A record that reaches beyond the end of its file.
class TruncatedRecord : public testing::TestWithParam<ThumbCase>
{
protected:
    static std::string record(int number = 0)
    {
        return sampleRecord(GetParam().format, {100, 80}, number);
    }

    /// Lengths at which parts of a record begin and end, and some inside them.
    static std::vector<int> partialLengths()
    {
        const int trailer = GetParam().layout().trailerOffset();
        const int stride = GetParam().layout().pixelsPerRow() * 2;
        return {1,
                stride - 1,
                stride,
                stride + 1,
                trailer / 2,
                trailer - stride,
                trailer - 5,
                trailer - 4,
                trailer - 1,
                trailer,
                trailer + 16, // no width
                trailer + 17, // no more of the width than its lowest byte
                trailer + 20, // no height
                trailer + 21,
                trailer + 27};
    }
};

TEST_P(TruncatedRecord, IsBlackWhereItLacksBytes)
{
    for (const int length : partialLengths()) {
        SCOPED_TRACE(testing::Message() << length << " bytes");
        const std::string partial = record(1).substr(0, static_cast<std::size_t>(length));
        const CacheFile cache(record(0) + partial);
        ifile file(cache.path().c_str());
        expectThumbOf(partial, GetParam(), decoding(GetParam(), file, 1));
    }
}

TEST_P(TruncatedRecord, IsBlackAndHasNoSizeAtTheEndOfTheFile)
{
    const CacheFile cache(record());
    ifile file(cache.path().c_str());
    const std::string black(record().size(), '\0');
    expectThumb(decoding(GetParam(), file, 1), expectedBmp(GetParam(), black), 0, 0);
}

TEST_P(TruncatedRecord, IsNothingOneByteBeyondTheEndOfTheFile)
{
    const CacheFile cache(record().substr(0, record().size() - 1));
    ifile file(cache.path().c_str());
    expectNothing(decoding(GetParam(), file, 1));
}

TEST_P(TruncatedRecord, IsAllThatAnEmptyFileHas)
{
    const CacheFile cache;
    ifile file(cache.path().c_str());
    expectThumbOf("", GetParam(), decoding(GetParam(), file, 0));
    expectNothing(decoding(GetParam(), file, 1));
}

TEST_P(TruncatedRecord, IsWhatIsLeftOfAFileThatIsCutOffWhileOpen)
{
    CacheFile cache(record(0) + record(1));
    ifile file(cache.path().c_str());
    expectThumbOf(record(1), GetParam(), decoding(GetParam(), file, 1));
    const std::string partial = record(1).substr(0, 5000);
    cache.resize(static_cast<std::int64_t>(record(0).size() + partial.size()));
    expectThumbOf(partial, GetParam(), decoding(GetParam(), file, 1));
    cache.resize(1);
    expectNothing(decoding(GetParam(), file, 1));
}

INSTANTIATE_TEST_SUITE_P(Formats, TruncatedRecord, testing::ValuesIn(thumbCases), NameOfCase());
