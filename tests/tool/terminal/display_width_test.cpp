#include "support/case_name.h"
#include "terminal/display_width.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace iosphoto::tool;
using iosphoto::test::NameOfCase;
using testing::ElementsAre;

namespace {

struct WidthCase
{
    std::string what;
    std::string text;
    std::size_t width;

    std::string name() const { return what; }
};

const WidthCase widths[] = {
    {"nothing", "", 0},
    {"ascii", "IMG_0001.JPG", 12},
    {"chinese", "相机胶卷", 8},
    {"full width", "ＡＢ", 4},
    {"combining mark", "e\u0301", 1},
    {"many marks", "a\u0301\u0302\u0303", 1},
    {"mark alone", "\u0301", 0},
    {"hangul of parts", "\u1112\u1161\u11ab", 2},
    {"emoji", "😀", 2},
    {"emoji of a skin colour", "👍🏽", 2},
    {"joined family", "👨‍👩‍👧‍👦", 2},
    {"flag", "🇩🇪", 2},
    {"two flags", "🇩🇪🇫🇷", 4},
    {"emoji presentation", "\u2764\uFE0F", 2},
    {"text presentation", "\u2764\uFE0E", 1},
    {"heart alone", "\u2764", 1},
    {"replacement", "\uFFFD", 1},
};

} // namespace

class DisplayWidth : public testing::TestWithParam<WidthCase>
{
};

TEST_P(DisplayWidth, IsWhatATerminalTakes)
{
    const WidthCase &param = GetParam();
    EXPECT_EQ(displayWidth(param.text), param.width);
    EXPECT_EQ(displayWidth("x" + param.text + "x"), param.width + 2);
}

INSTANTIATE_TEST_SUITE_P(Texts, DisplayWidth, testing::ValuesIn(widths), NameOfCase());

TEST(Shortened, LeavesWhatFits)
{
    EXPECT_EQ(elided("Summer", 6), "Summer");
    EXPECT_EQ(elided("相机", 4), "相机");
    EXPECT_EQ(elided("", 0), "");
}

TEST(Shortened, EndsInAnEllipsis)
{
    EXPECT_EQ(elided("Summer", 5), "Summ…");
    EXPECT_EQ(elided("Summer", 1), "…");
    EXPECT_EQ(elided("Summer", 0), "");
}

TEST(Shortened, CutsNoCharacter)
{
    EXPECT_EQ(elided("相机胶卷", 6), "相机…");
    EXPECT_EQ(elided("相机胶卷", 7), "相机胶…");
    EXPECT_EQ(elided("a👨‍👩‍👧‍👦b", 3), "a…");
    EXPECT_EQ(elided("ae\u0301\u0302bc", 3), "ae\u0301\u0302…");
    EXPECT_EQ(elided("🇩🇪🇫🇷", 3), "🇩🇪…");
}

TEST(Shortened, CutsNoEscape)
{
    EXPECT_EQ(elided("ab\\u001bcd", 8), "ab…");
    EXPECT_EQ(elided("ab\\u001bcd", 9), "ab\\u001b…");
    EXPECT_EQ(elided("ab\\U000e0001cd", 12), "ab…");
    EXPECT_EQ(elided("a\\nbc", 3), "a…");
    EXPECT_EQ(elided("ab\\u001bcd", 8, Elide::Left), "…cd");
    EXPECT_EQ(elided("ab\\users", 5), "ab\\u…") << "it is none";
    EXPECT_EQ(displayWidth("ä\\u001b"), 7U);
}

TEST(Shortened, KeepsTheEndWhereThatTellsMore)
{
    EXPECT_EQ(elided("DCIM/IMG_0001.JPG", 9, Elide::Left), "…0001.JPG");
    EXPECT_EQ(elided("相机胶卷", 6, Elide::Left), "…胶卷");
    EXPECT_EQ(elided("be\u0301x", 2, Elide::Left), "…x");
    EXPECT_EQ(elided("Summer", 6, Elide::Left), "Summer");
}

TEST(Wrapped, BreaksAtSpacesWhereThereAreSome)
{
    EXPECT_THAT(wrapped("one two three", 8), ElementsAre("one two", "three"));
    EXPECT_THAT(wrapped("one two", 7), ElementsAre("one two"));
    EXPECT_THAT(wrapped("one  two", 4), ElementsAre("one", "two"));
    EXPECT_THAT(wrapped("abcdefgh", 3), ElementsAre("abc", "def", "gh"));
    EXPECT_THAT(wrapped("", 3), ElementsAre(""));
}

TEST(Wrapped, BreaksPathsBehindSlashesWhereThereAreNoSpaces)
{
    EXPECT_THAT(wrapped("/home/photos/IMG_0001.JPG", 15),
                ElementsAre("/home/photos/", "IMG_0001.JPG"));
    EXPECT_THAT(wrapped("a zip/tar of it", 8), ElementsAre("a", "zip/tar", "of it"));
}

TEST(Wrapped, BreaksBesideWideCharactersButNotBeforeTheirPunctuation)
{
    EXPECT_THAT(wrapped("例如 iPhone14,2（默认）", 18), ElementsAre("例如 iPhone14,2", "（默认）"));
    EXPECT_THAT(wrapped("按 date、name", 9), ElementsAre("按 date、", "name"));
    EXPECT_THAT(wrapped("按 date、name", 8), ElementsAre("按", "date、", "name"));
    EXPECT_THAT(wrapped("在“相簿”中", 4), ElementsAre("在", "“相", "簿”", "中"));
}

TEST(Wrapped, KeepsCharactersWhole)
{
    EXPECT_THAT(wrapped("相机胶卷", 5), ElementsAre("相机", "胶卷"));
    EXPECT_THAT(wrapped("相机", 1), ElementsAre("相", "机"));
    EXPECT_THAT(wrapped("e\u0301e\u0301", 1), ElementsAre("e\u0301", "e\u0301"));
}

TEST(Padded, FillsUpToAWidth)
{
    EXPECT_EQ(padded("相", 4), "相  ");
    EXPECT_EQ(padded("7", 3, true), "  7");
    EXPECT_EQ(padded("wide", 2), "wide");
}
