#include "terminal/item_list.h"

#include "terminal/display_width.h"

#include <gtest/gtest.h>

using namespace iosphoto::tool;

namespace {

const std::string albums = cellOfItems({"Camera Roll", "Favorites", "One, two", "Trip", "Home"});

} // namespace

TEST(ItemList, IsShownWholeWhereItFits)
{
    const std::string whole = "Camera Roll, Favorites, One, two, Trip, Home";
    EXPECT_EQ(shownItems(albums), whole);
    EXPECT_EQ(shownItems(albums, whole.size()), whole);
}

TEST(ItemList, IsShortenedByWholeItemsWhoseNumberItTells)
{
    EXPECT_EQ(shownItems(albums, 43), "Camera Roll, Favorites, One, two, Trip, +1");
    EXPECT_EQ(shownItems(albums, 30), "Camera Roll, Favorites, +3");
    EXPECT_EQ(shownItems(albums, 15), "Camera Roll, +4");
}

TEST(ItemList, CutsItsFirstItemRatherThanTheNumber)
{
    EXPECT_EQ(shownItems(albums, 14), "Camera Ro…, +4");
    EXPECT_EQ(shownItems(albums, 5), "…, +4");
    EXPECT_EQ(shownItems(albums, 4), "Cam…");
}

TEST(ItemList, IsNeverWiderThanItsRoom)
{
    for (std::size_t columns = 1; columns < 50; ++columns)
        EXPECT_LE(displayWidth(shownItems(albums, columns)), columns);
}

TEST(ItemList, OfNothingOrOneItemHasNoNumber)
{
    EXPECT_EQ(shownItems(cellOfItems({}), 10), "");
    EXPECT_EQ(shownItems(cellOfItems({"Camera Roll"}), 10), "Camera Ro…");
}

TEST(ItemList, ShowsNoControlCharacter)
{
    EXPECT_EQ(shownItems(cellOfItems({"a\x1f"
                                      "b",
                                      "c\n"})),
              "a\\u001fb, c\\n");
}
