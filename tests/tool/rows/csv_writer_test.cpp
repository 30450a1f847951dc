#include "rows/csv_writer.h"

#include "support/case_name.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <sstream>

using namespace iosphoto::test;
using namespace iosphoto::tool;
using testing::IsEmpty;

namespace {

/// Reads CSV as spreadsheets do: a quote at the beginning of a cell holds it together up to the
/// next one that is not doubled, what follows is taken as it is, and elsewhere quotes mean nothing.
class Spreadsheet
{
public:
    Spreadsheet(std::string text, const std::string &separators)
        : text_(std::move(text)), ends_(separators + "\r\n")
    {
    }

    std::vector<std::string> cells()
    {
        std::vector<std::string> all;
        for (; at_ < text_.size(); ++at_)
            all.push_back(cell());
        return all;
    }

private:
    /// Leaves the place at what ends the cell.
    std::string cell()
    {
        std::string content;
        bool isQuoted = text_[at_] == '"';
        for (at_ += isQuoted ? 1 : 0; at_ < text_.size(); ++at_) {
            const bool isQuote = isQuoted && text_[at_] == '"';
            if (isQuote && text_[at_ + 1] != '"') {
                isQuoted = false;
                continue;
            }
            if (!isQuoted && ends_.find(text_[at_]) != std::string::npos)
                break;
            at_ += isQuote ? 1 : 0;
            content += text_[at_];
        }
        return content;
    }

    std::string text_;
    std::string ends_;
    std::size_t at_ = 0;
};

bool isNumber(const std::string &cell)
{
    char *end = nullptr;
    std::strtod(cell.c_str(), &end);
    return *end == '\0';
}

std::string withoutBlanks(std::string text)
{
    for (const std::string blank : {" ", "\t", "\r", "\n", "\u00A0", "\u3000", "\uFEFF"})
        for (std::size_t at; (at = text.find(blank)) != std::string::npos;)
            text.erase(at, blank.size());
    return text;
}

bool runs(const std::string &cell)
{
    const std::string text = withoutBlanks(cell);
    for (const std::string sign : {"=", "+", "-", "@", "\uFF1D", "\uFF0B", "\uFF0D", "\uFF20"})
        if (text.compare(0, sign.size(), sign) == 0)
            return !isNumber(cell);
    return false;
}

std::vector<std::string> formulasIn(const std::string &csv, const std::string &separators)
{
    std::vector<std::string> formulas;
    for (const std::string &cell : Spreadsheet(csv, separators).cells())
        if (runs(cell))
            formulas.push_back(cell);
    return formulas;
}

std::string csvOf(const std::vector<Value> &values)
{
    std::ostringstream out;
    CsvWriter writer(out);
    writer.row(values);
    writer.end();
    return out.str();
}

} // namespace

class CsvFormula : public testing::TestWithParam<std::string>
{
};

TEST_P(CsvFormula, RunsWhateverSeparatesCells)
{
    const std::string between[] = {
        "",    " ",  "x",   "x,", "x;",    "x; ", "x;\"",     "x;\"\" \"",
        "x\t", "\t", "x\n", "\n", "x\r\n", "\r",  "x;\u00A0", "x\n\u3000\uFEFF",
        ";;"};
    for (const std::string &before : between)
        for (const char *after : {"", ";y", "\ty", "\ny", ",y", "\"", "\";"}) {
            const std::string text = before + GetParam() + "1+1" + after;
            const std::string csv = csvOf({text, 1.5, text, std::string("harmless"), text});
            for (const char *separators : {",", ";", "\t", ",;\t"})
                EXPECT_THAT(formulasIn(csv, separators), IsEmpty()) << csv << separators;
        }
}

INSTANTIATE_TEST_SUITE_P(Signs, CsvFormula,
                         testing::Values("=", "+", "-", "@", "\uFF1D", "\uFF0B", "\uFF0D",
                                         "\uFF20"),
                         [](const auto &tested) { return "Sign" + std::to_string(tested.index); });

TEST(CsvFormulas, GoOnBehindABreak)
{
    for (const char *number : {"-5\n*A1", "+5\t&A1", "-5\r*1"})
        for (const char *before : {"", "x;", "x\n"}) {
            const std::string csv = csvOf({std::string(before) + number});
            for (const char *separators : {",", ";"})
                EXPECT_THAT(formulasIn(csv, separators), IsEmpty()) << csv << separators;
        }
}

TEST(CsvCells, OfAListAreGuardedItemByItem)
{
    const ListItem items[] = {{"", "a", ""}, {"", "=1+1", ""}, {"", "-5", ""}, {"", "@b;+c", ""}};
    EXPECT_EQ(csvOf({Items{&items[0], &items[1], &items[2], &items[3]}}),
              "\"a; '=1+1; -5; '@b;'+c\"\r\n");
}

TEST(CsvCells, OfHarmlessTextsStayAsTheyAre)
{
    EXPECT_EQ(csvOf({std::string("Trip"), std::string("Ärger & 旅行 - 1=1"), std::string("-12.5"),
                     std::string("a,b"), std::string("say \"x\""), std::int64_t{-5}, -1.5, true}),
              "Trip,Ärger & 旅行 - 1=1,-12.5,\"a,b\",\"say \"\"x\"\"\",-5,-1.5,true\r\n");
}

TEST(CsvCells, BehindANumberWithASignAreQuotedSoThatBothMakeNoFormula)
{
    EXPECT_EQ(csvOf({-5.5, std::string("1+1"), true}), "-5.5,\"1+1\",true\r\n");
    EXPECT_EQ(csvOf({std::string("+5"), std::string("1+1")}), "+5,\"1+1\"\r\n");
    EXPECT_EQ(csvOf({std::string(" -5"), std::string("1+1")}), " -5,\"1+1\"\r\n");
}

TEST(CsvCells, WithWhatSeparatesCellsElsewhereAreQuoted)
{
    EXPECT_EQ(csvOf({std::string("a;b"), std::string("a\tb")}), "\"a;b\",\"a\tb\"\r\n");
}
