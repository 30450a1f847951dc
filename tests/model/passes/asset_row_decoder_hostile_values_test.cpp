#include "support/case_name.h"
#include "support/catalogue.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>

using namespace iosphoto;
using namespace iosphoto::test;

namespace {

/// A library whose one asset has a value in a column that should not be there.
class OddAsset
{
public:
    OddAsset(const char *column, const Value &value) : library_(ios15)
    {
        library_.asset("IMG_0001.JPG").set(column, value);
    }

    /// The asset, under whatever name.
    const CPhotoData &photo()
    {
        catalogue_ = std::make_unique<Catalogue>(library_);
        EXPECT_EQ(catalogue_->result, 0);
        return *catalogue_->cameraRoll()->photos.at(0);
    }

private:
    LibraryBuilder library_;
    std::unique_ptr<Catalogue> catalogue_;
};

template <typename Shown>
struct Odd
{
    const char *label;
    Value stored;
    Shown shown;

    std::string name() const { return label; }
};

template <typename Shown>
std::ostream &operator<<(std::ostream &stream, const Odd<Shown> &odd)
{
    return stream << odd.label;
}

constexpr std::int64_t smallest = std::numeric_limits<std::int64_t>::min();

const Odd<int> numbers[] = {
    {"Null", nullptr, 0},
    {"Text", "wide", 0},
    {"TextOfANumber", "640", 640},
    {"TextThatStartsWithANumber", "640px", 640},
    {"TextOfARealNumber", "64e1", 640},
    {"EmptyText", "", 0},
    {"Blob", Blob{"\x01\x02"}, 0},
    {"BlobOfDigits", Blob{"640"}, 640},
    {"Real", 640.9, 640},
    {"NegativeReal", -640.9, -640},
    {"MoreThan32Bits", std::int64_t(4294967296 + 640), 640},
    {"OneBitTooMany", std::int64_t(2147483648), std::numeric_limits<int>::min()},
    {"SmallestInteger", smallest, 0},
    {"HugeReal", 1e300, -1},
    {"HugeNegativeReal", -1e300, 0},
};

} // namespace

class OddNumber : public testing::TestWithParam<Odd<int>>
{
};

TEST_P(OddNumber, IsConvertedToAnInteger)
{
    EXPECT_EQ(OddAsset("ZWIDTH", GetParam().stored).photo().width, GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(Values, OddNumber, testing::ValuesIn(numbers), NameOfCase());

namespace {

const Odd<std::string> texts[] = {
    {"Integer", 42, "42"},
    {"Real", 1.5, "1.5"},
    {"Blob", Blob{"IMG_0002.JPG"}, "IMG_0002.JPG"},
    {"EmbeddedNul", std::string("IMG\0.JPG", 8), "IMG"},
    {"InvalidUtf8", "IMG\xFF.JPG", "IMG\uFFFD.JPG"},
    {"BeyondTheBasicPlane", "IMG\U0001F600.JPG", "IMG\U0001F600.JPG"},
    {"PathLike", "../../etc/passwd", "../../etc/passwd"},
    {"VeryLong", std::string(100000, 'A'), std::string(100000, 'A')},
};

} // namespace

class OddText : public testing::TestWithParam<Odd<std::string>>
{
};

TEST_P(OddText, IsConvertedToUtf8UpToItsFirstNul)
{
    EXPECT_EQ(OddAsset("ZFILENAME", GetParam().stored).photo().fileName.toStdString(),
              GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(Values, OddText, testing::ValuesIn(texts), NameOfCase());

TEST(OddText, ThatStartsWithANulIsNoFileName)
{
    LibraryBuilder library(ios15);
    library.asset(std::string("\0.JPG", 5));
    library.asset(Blob{});

    EXPECT_EQ(files(Catalogue(library).cameraRoll()), Files{});
}

TEST(OddText, InAUuidColumnKeepsItsBytes)
{
    EXPECT_EQ(OddAsset("ZUUID", "\xFF\xFE").photo().uuid, "\xFF\xFE");
    EXPECT_EQ(OddAsset("ZUUID", std::string("AB\0CD", 5)).photo().uuid, "AB");
    EXPECT_EQ(OddAsset("ZUUID", 42).photo().uuid, "42");
}

TEST(OddText, InAUuidColumnOfBlobsIsShownAsHexadecimal)
{
    LibraryBuilder library(ios7);
    library.cameraRollAsset("text.jpg").set("ZUUID", "AZ");
    library.cameraRollAsset("number.jpg").set("ZUUID", 42);

    const Catalogue catalogue(library);

    EXPECT_EQ(catalogue.photo("text.jpg").uuid, "415a");
    EXPECT_EQ(catalogue.photo("number.jpg").uuid, "3432");
}

namespace {

struct DateShown
{
    double time;
    const char *text;
};

// The asset was added on 2020-01-05, which stands in for a negative date of creation.
const Odd<DateShown> dates[] = {
    {"Text", "yesterday", {0, "2001-01-01"}},
    {"TextThatStartsWithANumber", "600000000s", {600000000, "2020-01-06"}},
    {"Blob", Blob{"\x01"}, {0, "2001-01-01"}},
    {"LastSecondOf32Bits", std::int64_t(3316660095), {3316660095, "2106-02-07"}},
    {"FirstSecondBeyond32Bits", std::int64_t(3316660096), {3316660096, "1970-01-01"}},
    {"FarFuture", std::int64_t(123456789012345), {123456789012345, "2072-04-08"}},
    {"HugeInteger", std::int64_t(9000000000000000000), {9e18, "1985-04-29"}},
    {"HugeReal", 1e300, {9223372036854775808.0, "2106-02-07"}},
    {"HugeNegativeInteger", std::int64_t(-9000000000000000000), {-9e18, "2020-01-05"}},
    {"SmallestInteger", smallest, {-9223372036854775808.0, "2020-01-05"}},
    {"HugeNegativeReal", -1e300, {-9223372036854775808.0, "2020-01-05"}},
};

} // namespace

class OddDate : public testing::TestWithParam<Odd<DateShown>>
{
};

TEST_P(OddDate, IsConvertedToAnIntegerAndWrapsAt32Bits)
{
    OddAsset asset("ZDATECREATED", GetParam().stored);
    const CPhotoData &photo = asset.photo();
    EXPECT_EQ(photo.createdTime, GetParam().shown.time);
    EXPECT_EQ(photo.dateText.toStdString(), GetParam().shown.text);
}

INSTANTIATE_TEST_SUITE_P(Values, OddDate, testing::ValuesIn(dates), NameOfCase());

TEST(OddSize, OfTheSmallestIntegerHasNoLowBits)
{
    EXPECT_EQ(OddAsset("ZORIGINALFILESIZE", smallest).photo().fileSize, 0);
    EXPECT_EQ(OddAsset("ZORIGINALFILESIZE", smallest + 1).photo().fileSize, 1);
    EXPECT_EQ(OddAsset("ZORIGINALFILESIZE", -1e300).photo().fileSize, 0);
    EXPECT_EQ(OddAsset("ZORIGINALFILESIZE", 1e300).photo().fileSize,
              std::numeric_limits<std::int64_t>::max());
}

TEST(OddDuration, BeyondAFloatIsInfinite)
{
    constexpr float infinity = std::numeric_limits<float>::infinity();
    EXPECT_EQ(OddAsset("ZDURATION", 1e300).photo().duration, infinity);
    EXPECT_EQ(OddAsset("ZDURATION", -1e300).photo().duration, -infinity);
    EXPECT_EQ(OddAsset("ZDURATION", "long").photo().duration, 0);
    EXPECT_EQ(OddAsset("ZDURATION", "2.5 s").photo().duration, 2.5F);
}
