#include "text/did_you_mean.h"

#include <gtest/gtest.h>

using namespace iosphoto::tool;

namespace {

const std::vector<std::string> known = {"name", "albums", "Weekend at the lake"};

} // namespace

TEST(DidYouMean, AsksForOneSlipInAShortWordAndMoreInLongerOnes)
{
    EXPECT_EQ(didYouMean("nane", known), "; did you mean 'name'?");
    EXPECT_EQ(didYouMean("nam", known), "; did you mean 'name'?");
    EXPECT_EQ(didYouMean("naane", known), "; did you mean 'name'?");
    EXPECT_EQ(didYouMean("mine", known), "");
    EXPECT_EQ(didYouMean("weekand on the lake", known), "; did you mean 'Weekend at the lake'?");
}

TEST(DidYouMean, TakesSwappedLettersForOneSlip)
{
    EXPECT_EQ(didYouMean("nmae", known), "; did you mean 'name'?");
    EXPECT_EQ(didYouMean("amne", known), "");
}

TEST(DidYouMean, AsksForTheNearest)
{
    EXPECT_EQ(didYouMean("albumx", {"albumsss", "albums", "album"}), "; did you mean 'albums'?");
}

TEST(DidYouMean, AsksNothingOfNothingAndOfNamesWithoutEnd)
{
    EXPECT_EQ(didYouMean("", known), "");
    EXPECT_EQ(didYouMean("name", {}), "");
    EXPECT_EQ(didYouMean(std::string(1000, 'a'), {std::string(1000, 'a') + "b"}), "");
    EXPECT_EQ(didYouMean("name", {std::string(100'000'000, 'a')}), "");
}
