#include "terminal/text_table.h"

#include "terminal/display_width.h"
#include "terminal/item_list.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace iosphoto::tool;

namespace {

const std::string family = "👨‍👩‍👧‍👦"; // one character, two columns wide

using Align = TextTable::Align;

TextTable sample()
{
    TextTable table({{"DAY"}, {"FILE NAME"}, {"SIZE", Align::Right}, {"UUID"}});
    table.add({"2020-01-06", "DCIM/100APPLE/a very long name.JPG", "1.5 MB", ""});
    table.add({"2020-01-07", "相机胶卷/" + family + family + family + ".JPG", "10 KB", "B0000000"});
    return table;
}

Screen terminal(std::size_t columns, bool isColored = false)
{
    return {true, isColored, columns};
}

std::string printed(const TextTable &table, const Screen &screen)
{
    std::ostringstream out;
    table.print(out, screen);
    return out.str();
}

} // namespace

TEST(TextTable, IsWholeWhereItIsNotShownOnATerminal)
{
    const std::string whole = "DAY         FILE NAME                             SIZE  UUID\n"
                              "2020-01-06  DCIM/100APPLE/a very long name.JPG  1.5 MB\n"
                              "2020-01-07  相机胶卷/" +
                              family + family + family + ".JPG                  10 KB  B0000000\n";
    EXPECT_EQ(printed(sample(), {}), whole);
    EXPECT_EQ(printed(sample(), terminal(64)), whole);
}

TEST(TextTable, PrintsRowsThatWereMeasuredLikeThoseThatItKeeps)
{
    const std::vector<std::vector<std::string>> rows = {{"a", "long cell"}, {"longer cell", "b"}};
    const auto rowsAnew = [&](const TextTable::TakeCells &take) {
        for (const auto &row : rows)
            take(row);
    };
    TextTable kept({{"ONE"}, {"TWO"}});
    TextTable measured({{"ONE"}, {"TWO"}});
    for (const auto &row : rows)
        kept.add(row);
    rowsAnew([&](const std::vector<std::string> &cells) { measured.measure(cells); });
    for (const Screen &screen : {Screen{}, terminal(80), terminal(20), terminal(8)}) {
        std::ostringstream out;
        measured.print(out, screen, rowsAnew);
        EXPECT_EQ(out.str(), printed(kept, screen));
    }
}

TEST(TextTable, CutsTheWidestCellsToFitATerminal)
{
    EXPECT_EQ(printed(sample(), terminal(46)), "DAY         FILE NAME           SIZE  UUID\n"
                                               "2020-01-06  DCIM/100APPLE/a…  1.5 MB\n"
                                               "2020-01-07  相机胶卷/" +
                                                   family + family + family +
                                                   "…   10 KB  B0000000\n");
}

TEST(TextTable, CutsNothingToLessThanIsUseful)
{
    TextTable table({{"TIME", Align::Left, Elide::Right, false},
                     {"PATH", Align::Left, Elide::Left},
                     {"WORDS"}});
    table.add(
        {"2020-01-06 10:40:00 UTC", "DCIM/100APPLE/IMG_0001 (1).JPG", "many words of a text"});
    EXPECT_EQ(printed(table, terminal(23 + 24 + 13 + 4)),
              "TIME                     PATH                      WORDS\n"
              "2020-01-06 10:40:00 UTC  …0APPLE/IMG_0001 (1).JPG  many words o…\n");
    EXPECT_EQ(printed(table, terminal(23 + 24 + 13 + 3)), "TIME   2020-01-06 10:40:00 UTC\n"
                                                          "PATH   DCIM/100APPLE/IMG_0001 (1).JPG\n"
                                                          "WORDS  many words of a text\n");
}

TEST(TextTable, LeavesSpareColumnsOutAndSaysSo)
{
    TextTable::Column size = {"SIZE", Align::Right};
    size.spareRank = 1;
    TextTable table({{"NAME"}, size, {"WORDS"}});
    table.add({"IMG_0001.JPG", "1.5 MB", "many words of a text"});
    EXPECT_EQ(printed(table, terminal(42)), "NAME            SIZE  WORDS\n"
                                            "IMG_0001.JPG  1.5 MB  many words of a text\n");
    EXPECT_EQ(printed(table, terminal(34)), "NAME          WORDS\n"
                                            "IMG_0001.JPG  many words of a text\n"
                                            "\n"
                                            "columns for which the terminal is\n"
                                            "too narrow: SIZE\n");
    EXPECT_EQ(printed(table, {}), printed(table, terminal(42)));
}

TEST(TextTable, ShortensListsByItems)
{
    TextTable::Column albums = {"ALBUMS"};
    albums.isList = true;
    TextTable table({{"NAME"}, albums});
    table.add({"1.JPG", cellOfItems({"Camera Roll", "Favorites", "a\nb"})});
    EXPECT_EQ(printed(table, {}), "NAME   ALBUMS\n1.JPG  Camera Roll, Favorites, a\\nb\n");
    EXPECT_EQ(printed(table, terminal(34)), "NAME   ALBUMS\n1.JPG  Camera Roll, Favorites, +1\n");
    EXPECT_EQ(printed(table, terminal(19)), "NAME    1.JPG\n"
                                            "ALBUMS  Camera\n"
                                            "        Roll,\n"
                                            "        Favorites,\n"
                                            "        a\\nb\n");
}

TEST(TextTable, PrintsBlocksWhereCuttingIsNotEnough)
{
    EXPECT_EQ(printed(sample(), terminal(30)), "DAY        2020-01-06\n"
                                               "FILE NAME  DCIM/100APPLE/a\n"
                                               "           very long name.JPG\n"
                                               "SIZE       1.5 MB\n"
                                               "\n"
                                               "DAY        2020-01-07\n"
                                               "FILE NAME  相机胶卷/" +
                                                   family + family + family +
                                                   ".JPG\n"
                                                   "SIZE       10 KB\n"
                                                   "UUID       B0000000\n");
}

TEST(TextTable, IsNeverWiderThanTheTerminal)
{
    for (std::size_t columns = 4; columns < 80; ++columns) {
        std::istringstream lines(printed(sample(), terminal(columns)));
        int count = 0;
        for (std::string line; std::getline(lines, line); ++count)
            EXPECT_LE(displayWidth(line), columns) << line;
        EXPECT_GE(count, 3) << columns;
    }
}

TEST(TextTable, HasBoldHeadingsWhereThereAreColours)
{
    TextTable table({{"A"}, {"B"}, {"C"}});
    table.add({"1", "2", "3"});
    const std::string rows = "\x1b[1mA  B  C\x1b[0m\n1  2  3\n";
    EXPECT_EQ(printed(table, terminal(7, true)), rows);
    EXPECT_EQ(printed(table, {false, true, std::nullopt}), rows);
    EXPECT_EQ(printed(table, terminal(6, true)),
              "\x1b[1mA\x1b[0m  1\n\x1b[1mB\x1b[0m  2\n\x1b[1mC\x1b[0m  3\n");
}
