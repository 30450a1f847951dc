#include "support/case_name.h"
#include "support/csv_reader.h"
#include "support/query.h"
#include "support/run_on.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

using namespace iosphoto::test;
using testing::HasSubstr;

namespace {

struct Name
{
    const char *label;
    std::string text;
    std::string shown; ///< in a table
    std::string cell;  ///< of CSV, when read back

    std::string name() const { return label; }
};

std::ostream &operator<<(std::ostream &stream, const Name &name)
{
    return stream << name.label;
}

Name same(const char *label, const std::string &text)
{
    return {label, text, text, text};
}

const Name names[] = {
    same("Plain", "Trip"),
    same("Quotes", "\"Trip\", it's; \\ said"),
    same("Umlauts", "Ärger & 旅行"),
    same("Emoji", "\U0001F600 \U0001F468\u200D\U0001F469\u200D\U0001F467"),
    same("Html", "<b>&amp;</b>"),
    {"Newlines", "two\nlines\r\nmore", "two\\nlines\\r\\nmore", "two\nlines\r\nmore"},
    {"ControlCharacters", "a\x1b[31m\x07\x7f\tb", "a\\u001b[31m\\u0007\\u007f\\tb",
     "a\x1b[31m\x07\x7f\tb"},
    {"RightToLeft", "\u202Egpj.exe", "\\u202egpj.exe", "\u202Egpj.exe"},
    {"Formula", "=cmd|' /C calc'!A0", "=cmd|' /C calc'!A0", "'=cmd|' /C calc'!A0"},
    {"Plus", "+SUM(1,2)", "+SUM(1,2)", "'+SUM(1,2)"},
    {"Minus", "-1+2", "-1+2", "'-1+2"},
    {"At", "@SUM(A1)", "@SUM(A1)", "'@SUM(A1)"},
    {"Tab", "\t=1", "\\t=1", "'\t'=1"},
    {"CarriageReturn", "\r=1", "\\r=1", "'\r'=1"},
    {"FullWidth", "\uFF1D1+1", "\uFF1D1+1", "'\uFF1D1+1"},
    {"FormulaWithAQuote", "=\"x\"", "=\"x\"", "'=\"x\""},
    same("NegativeNumber", "-12.5"),
    same("PhoneNumber", "+4912345"),
    {"LoneMinus", "-", "-", "'-"},
    {"LineFeed", "\n=1", "\\n=1", "'\n'=1"},
    {"Blank", " =1", " =1", " '=1"},
    {"Semicolon", "x;=1+1", "x;=1+1", "x;'=1+1"},
    {"SemicolonAndBlanks", "x; \u3000@A1;y", "x; \u3000@A1;y", "x; \u3000'@A1;y"},
    {"SemicolonAndQuotes", "x;\"=1+1;y", "x;\"=1+1;y", "x;\"'=1+1;y"},
    {"LaterLine", "x\r\n+1+1", "x\\r\\n+1+1", "x\r\n'+1+1"},
    {"LaterTab", "x\t\uFF0B1+1", "x\\t\uFF0B1+1", "x\t'\uFF0B1+1"},
    {"NumberThatGoesOnInTheNextLine", "-5\n*1", "-5\\n*1", "'-5\n*1"},
    {"NumberThatGoesOnBehindATab", "x;-5\t&A1;y", "x;-5\\t&A1;y", "x;'-5\t&A1;y"},
    same("NumbersInAList", "x; -5;+12; and 1 - 1 = 0, +1"),
};

} // namespace

class ToolNames : public testing::TestWithParam<Name>
{
protected:
    ToolNames() { library_.asset("IMG_0001.JPG").in(library_.album(GetParam().text)); }

    ToolRun albums(const std::vector<std::string> &arguments) const
    {
        ToolRun run = runOn(library_, "albums", arguments);
        EXPECT_EQ(run.error, "");
        EXPECT_EQ(run.status, 0);
        return run;
    }

    LibraryBuilder library_{ios15};
};

TEST_P(ToolNames, StayWholeInADocument)
{
    const auto document = nlohmann::json::parse(albums({"--json"}).out);
    EXPECT_EQ(document["albums"][2]["name"], GetParam().text);
    const auto photos = nlohmann::json::parse(runOn(library_, "photos", {"--json"}).out);
    EXPECT_EQ(photos["photos"][0]["albums"][1]["name"], GetParam().text);
}

TEST_P(ToolNames, StayOneLineInJsonLines)
{
    const std::string out = albums({"--jsonl", "--fields", "name"}).out;
    EXPECT_EQ(std::count(out.begin(), out.end(), '\n'), 4);
    const std::size_t third = out.find('\n', out.find('\n') + 1) + 1;
    EXPECT_EQ(nlohmann::json::parse(out.substr(third, out.find('\n', third) - third))["name"],
              GetParam().text);
}

TEST_P(ToolNames, AreQuotedAndGuardedInCsv)
{
    const auto rows = readCsv(albums({"--csv"}).out);
    ASSERT_EQ(rows.size(), 4U);
    EXPECT_EQ(rows[2].at("name"), GetParam().cell);
}

TEST_P(ToolNames, StayWholeInSqlite)
{
    const std::string file = (library_.folder() / "out.db").string();
    EXPECT_EQ(albums({"--sqlite", file}).out, "wrote " + file + "\n");
    EXPECT_EQ(query(file, "select name from albums where kind = 'user'"),
              (std::vector<std::vector<std::string>>{{GetParam().text}}));
}

TEST_P(ToolNames, AreOneLineInATable)
{
    EXPECT_THAT(albums({"--fields", "kind,name"}).out,
                HasSubstr("\nuser              " + GetParam().shown + "\n"));
}

INSTANTIATE_TEST_SUITE_P(Names, ToolNames, testing::ValuesIn(names), NameOfCase());

TEST(ToolNamesOfOtherBytes, BecomeReplacementCharacters)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG").set("ZUUID", "bad\xff\xc3uuid");
    const std::string replaced = "bad\uFFFD\uFFFDuuid";
    const std::string file = (library.folder() / "out.db").string();

    const auto document = nlohmann::json::parse(runOn(library, "photos", {"--json"}).out);
    EXPECT_EQ(document["photos"][0]["uuid"], replaced);
    EXPECT_EQ(readCsv(runOn(library, "photos", {"--csv"}).out).at(0).at("uuid"), replaced);
    EXPECT_EQ(runOn(library, "photos", {"--fields", "uuid"}).out, "uuid\n" + replaced + "\n");
    EXPECT_EQ(runOn(library, "photos", {"--sqlite", file}).status, 0);
    EXPECT_EQ(query(file, "select uuid from photos"),
              (std::vector<std::vector<std::string>>{{replaced}}));
}
