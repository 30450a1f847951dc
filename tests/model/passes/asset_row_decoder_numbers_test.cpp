#include "support/case_name.h"
#include "support/catalogue.h"

#include <gtest/gtest.h>

using namespace iosphoto;
using namespace iosphoto::test;

namespace {

struct Size
{
    const char *label;
    std::int64_t stored;
    std::int64_t shown;

    std::string name() const { return label; }
};

std::ostream &operator<<(std::ostream &stream, const Size &size)
{
    return stream << size.stored;
}

constexpr Size sizes[] = {
    {"Zero", 0, 0},
    {"LargestOf31Bits", 2147483647, 2147483647},
    {"BeyondFourGigabytes", 8589934593, 8589934593},
    {"MinusOne", -1, 4294967295},
    {"WrappedThreeGigabytes", -1294967296, 3000000000},
    {"SmallestOf32Bits", -2147483648, 2147483648},
    {"BelowThe32Bits", -4294967297, 4294967295},
};

} // namespace

class FileSize : public testing::TestWithParam<Size>
{
};

TEST_P(FileSize, OfANegativeNumberIsThatOfItsLow32Bits)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.MOV").set("ZORIGINALFILESIZE", GetParam().stored);
    EXPECT_EQ(Catalogue(library).photo("IMG_0001.MOV").fileSize, GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(Sizes, FileSize, testing::ValuesIn(sizes), NameOfCase());

namespace {

struct Dates
{
    const char *label;
    std::int64_t created;
    std::int64_t added;
    const char *text;

    std::string name() const { return label; }
};

std::ostream &operator<<(std::ostream &stream, const Dates &dates)
{
    return stream << dates.created << ", added " << dates.added;
}

constexpr Dates dates[] = {
    {"Zero", 0, 600000000, "2001-01-01"},
    {"LastSecondOfTheDay", 86399, 600000000, "2001-01-01"},
    {"NextDay", 86400, 600000000, "2001-01-02"},
    {"NegativeCountsAsAdded", -1, 600000000, "2020-01-06"},
    {"NegativeAddedIn2000", -1, -1, "2000-12-31"},
    {"NegativeAddedAtTheUnixEpoch", -1, -978307200, "1970-01-01"},
    {"NegativeAddedBeforeTheUnixEpoch", -1, -978307201, "未知"},
    {"BothFarBeforeTheUnixEpoch", -1000000000, -1000000000, "未知"},
    {"CreatedIgnoresANegativeAdded", 600000000, -1000000000, "2020-01-06"},
};

} // namespace

class DateText : public testing::TestWithParam<Dates>
{
};

TEST_P(DateText, IsTheDayOfCreationOrElseOfAdding)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG")
        .set("ZDATECREATED", GetParam().created)
        .set("ZADDEDDATE", GetParam().added);

    const Catalogue catalogue(library);
    const CPhotoData &photo = catalogue.photo("IMG_0001.JPG");

    EXPECT_EQ(photo.dateText.toStdString(), GetParam().text);
    EXPECT_EQ(photo.createdTime, static_cast<double>(GetParam().created));
    EXPECT_EQ(photo.addedTime, static_cast<double>(GetParam().added));
}

INSTANTIATE_TEST_SUITE_P(Days, DateText, testing::ValuesIn(dates), NameOfCase());

TEST(DateTextBelowIos8, HasNoDateOfAddingToFallBackTo)
{
    LibraryBuilder library(ios7);
    library.cameraRollAsset("epoch.jpg").set("ZDATECREATED", -978307200);
    library.cameraRollAsset("before.jpg").set("ZDATECREATED", -978307201);

    const Catalogue catalogue(library);

    EXPECT_EQ(catalogue.photo("epoch.jpg").dateText.toStdString(), "1970-01-01");
    EXPECT_EQ(catalogue.photo("before.jpg").dateText.toStdString(), "未知");
    EXPECT_EQ(catalogue.photo("before.jpg").addedTime, -978307201);
}

TEST(AssetDates, LoseTheirFractions)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG")
        .set("ZDATECREATED", -0.75)
        .set("ZMODIFICATIONDATE", 500000000.99)
        .set("ZADDEDDATE", -1.5);

    const Catalogue catalogue(library);
    const CPhotoData &photo = catalogue.photo("IMG_0001.JPG");

    EXPECT_EQ(photo.createdTime, 0);
    EXPECT_EQ(photo.modifiedTime, 500000000);
    EXPECT_EQ(photo.addedTime, -1);
    EXPECT_EQ(photo.dateText.toStdString(), "2001-01-01");
}

TEST(AssetDuration, HasThePrecisionOfAFloat)
{
    LibraryBuilder library(ios15);
    library.asset("long.mov").set("ZDURATION", 16777217.0);
    library.asset("short.mov").set("ZDURATION", 0.1);

    const Catalogue catalogue(library);

    EXPECT_EQ(catalogue.photo("long.mov").duration, 16777216.0F);
    EXPECT_EQ(catalogue.photo("short.mov").duration, 0.1F);
}
