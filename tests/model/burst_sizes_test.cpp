#include "model/burst_sizes.h"

#include "support/hand_made_catalogue.h"

#include <gtest/gtest.h>

using namespace iosphoto;
using namespace iosphoto::test;

namespace {

class BurstSizesTest : public testing::Test
{
protected:
    /// The Bursts album with a frame of each of these bursts.
    const CAlbumGroup *framesOf(const std::vector<const char *> &bursts)
    {
        CAlbumGroup &album = made_.add(AlbumKind::Bursts, smart, "Bursts");
        for (const char *burst : bursts)
            HandMadeCatalogue::addPhoto(album, "1.jpg").burstUuid = burst;
        return &album;
    }

private:
    HandMadeCatalogue made_;
};

} // namespace

TEST_F(BurstSizesTest, CountFramesThatAreNotNeighbours)
{
    BurstSizes sizes(framesOf({"a", "b", "a", "c", "b", "a"}));
    EXPECT_EQ(sizes.of("a"), 3);
    EXPECT_EQ(sizes.of("b"), 2);
    EXPECT_EQ(sizes.of("c"), 1);
}

TEST_F(BurstSizesTest, AreTheSameInWhateverOrderTheyAreAskedFor)
{
    BurstSizes sizes(framesOf({"a", "a", "b", "c", "c", "c"}));
    for (const auto &[burst, size] : std::vector<std::pair<const char *, int>>{
             {"c", 3}, {"c", 3}, {"a", 2}, {"c", 3}, {"b", 1}, {"a", 2}, {"b", 1}})
        EXPECT_EQ(sizes.of(burst), size) << burst;
}

TEST_F(BurstSizesTest, AreZeroOfBurstsThatTheAlbumDoesNotHave)
{
    BurstSizes sizes(framesOf({"a"}));
    EXPECT_EQ(sizes.of("A"), 0);
    EXPECT_EQ(sizes.of(""), 0);
    EXPECT_EQ(sizes.of("a"), 1);
    EXPECT_EQ(BurstSizes(nullptr).of("a"), 0);
}
