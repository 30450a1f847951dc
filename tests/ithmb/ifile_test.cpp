#include "ithmb/ithmb.h"
#include "support/cache_file.h"
#include "support/next_descriptor.h"

#include <gtest/gtest.h>

#include <climits>
#include <optional>

using namespace iosphoto::test;

namespace {

/// What a reading of so many bytes puts into a buffer of dots; nothing when it fails.
std::optional<std::string> read(ifile &file, int count)
{
    std::string buffer(8, '.');
    if (!file.read(buffer.data(), count))
        return std::nullopt;
    return buffer;
}

} // namespace

TEST(IFile, ReadsFromTheStartOn)
{
    const CacheFile cache("0123456789");
    ifile file(cache.path().c_str());
    ASSERT_TRUE(file.is_open());
    EXPECT_EQ(read(file, 4), "0123....");
    EXPECT_EQ(read(file, 6), "456789..");
}

TEST(IFile, SeeksFromTheStartOfTheFile)
{
    const CacheFile cache("0123456789");
    ifile file(cache.path().c_str());
    EXPECT_EQ(file.seekg(7), 0);
    EXPECT_EQ(read(file, 2), "78......");
    EXPECT_EQ(file.seekg(7), 0);
    EXPECT_EQ(read(file, 2), "78......");
    EXPECT_EQ(file.seekg(0), 0);
    EXPECT_EQ(read(file, 1), "0.......");
}

TEST(IFile, SeekBeforeTheStartFails)
{
    const CacheFile cache("0123456789");
    ifile file(cache.path().c_str());
    EXPECT_NE(file.seekg(-1), 0);
    EXPECT_NE(file.seekg(LONG_MIN), 0);
}

TEST(IFile, ReadingSucceedsExactlyWhenAllBytesAreThere)
{
    const CacheFile cache("0123456789");
    ifile file(cache.path().c_str());
    file.seekg(4);
    EXPECT_EQ(read(file, 6), "456789..");
    EXPECT_EQ(read(file, 1), std::nullopt);
    EXPECT_EQ(read(file, 0), "........");
    file.seekg(100);
    EXPECT_EQ(read(file, 1), std::nullopt);
}

TEST(IFile, ShortReadGivesTheBytesThatAreThere)
{
    const CacheFile cache("0123456789");
    ifile file(cache.path().c_str());
    file.seekg(7);
    char buffer[6] = "-----";
    EXPECT_FALSE(file.read(buffer, 5));
    EXPECT_STREQ(buffer, "789--");
}

TEST(IFile, SeekingEndsTheEndOfTheFile)
{
    const CacheFile cache("0123456789");
    ifile file(cache.path().c_str());
    file.seekg(10);
    ASSERT_EQ(read(file, 1), std::nullopt);
    file.seekg(9);
    EXPECT_EQ(read(file, 1), "9.......");
}

TEST(IFile, LengthIsThatOfTheFileAndReadingGoesOnAtTheStart)
{
    const CacheFile cache("0123456789");
    ifile file(cache.path().c_str());
    file.seekg(5);
    EXPECT_EQ(file.getlength(), 10);
    EXPECT_EQ(read(file, 2), "01......");
}

TEST(IFile, LengthBeyond2GiB)
{
    constexpr long length = 5'000'000'000;
    CacheFile cache;
    cache.write(length - 3, "end");
    ifile file(cache.path().c_str());
    EXPECT_EQ(file.getlength(), length);
    EXPECT_EQ(file.seekg(length - 3), 0);
    EXPECT_EQ(read(file, 3), "end.....");
}

TEST(IFile, WithoutAFileEveryOperationFails)
{
    for (const char *path : {"/nowhere/thumbs.ithmb", static_cast<const char *>(nullptr)}) {
        ifile file(path);
        EXPECT_FALSE(file.is_open());
        EXPECT_NE(file.seekg(0), 0);
        EXPECT_EQ(read(file, 1), std::nullopt);
        EXPECT_EQ(file.getlength(), -1);
        EXPECT_EQ(file.close(), 0);
    }
}

TEST(IFile, ImpossibleReadingsFail)
{
    const CacheFile cache("0123456789");
    ifile file(cache.path().c_str());
    EXPECT_EQ(read(file, -1), std::nullopt);
    EXPECT_EQ(read(file, INT_MIN), std::nullopt);
    EXPECT_FALSE(file.read(nullptr, 1));
    EXPECT_EQ(read(file, 1), "0.......");
}

TEST(IFile, ClosesWithTheObject)
{
    const CacheFile cache("0123456789");
    const int before = nextDescriptor();
    {
        const ifile file(cache.path().c_str());
        EXPECT_NE(nextDescriptor(), before);
    }
    EXPECT_EQ(nextDescriptor(), before);
}

TEST(IFile, ClosesBeforeTheObjectGoes)
{
    const CacheFile cache("0123456789");
    const int before = nextDescriptor();
    ifile file(cache.path().c_str());
    EXPECT_EQ(file.close(), 0);
    EXPECT_EQ(nextDescriptor(), before);
    EXPECT_FALSE(file.is_open());
    EXPECT_NE(file.seekg(0), 0);
    EXPECT_EQ(file.close(), 0);
}
