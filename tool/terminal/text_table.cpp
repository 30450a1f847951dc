#include "terminal/text_table.h"

#include "terminal/item_list.h"
#include "terminal/paragraph.h"
#include "text/lists.h"
#include "text/printable.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace iosphoto::tool {

namespace {

const std::string gap(columnGap, ' ');

/// The width below which a column that may be cut is of no use: of a path, as much as shows the
/// name of its file.
std::size_t leastWidth(std::size_t headingWidth, Elide elide)
{
    constexpr std::size_t ofText = 13;
    constexpr std::size_t ofPath = 24;
    return std::max(headingWidth, elide == Elide::Left ? ofPath : ofText);
}

/// Where headings end and values begin.
struct Layout
{
    std::size_t headings;
    std::size_t values;
};

/// Headings are cut rather than that they leave no room for values.
Layout layoutOf(const std::vector<std::string> &headings, std::size_t columns)
{
    std::size_t widest = 0;
    for (const std::string &heading : headings)
        widest = std::max(widest, displayWidth(heading));
    const std::size_t most = columns / 2 > columnGap ? columns / 2 - columnGap : 0;
    const std::size_t width = std::min(widest, most);
    return {width, columns > width + columnGap ? columns - width - columnGap : 1};
}

} // namespace

TextTable::TextTable(std::vector<Column> columns) : columns_(std::move(columns))
{
    for (Column &column : columns_) {
        column.heading = printable(column.heading);
        widths_.push_back(displayWidth(column.heading));
    }
}

void TextTable::add(const std::vector<std::string> &cells)
{
    Row row;
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        row.push_back(columns_[i].isList ? cells.at(i) : printable(cells.at(i)));
        widths_[i] = std::max(widths_[i], displayWidth(whole(i, row.back())));
    }
    rows_.push_back(std::move(row));
}

void TextTable::print(std::ostream &out, const Screen &screen) const
{
    if (!screen.columns) {
        printRows(out, screen, wholeWidths(needs()));
    } else if (const auto fitting = widthsThatFit(needs(), *screen.columns)) {
        printRows(out, screen, *fitting);
        printWhatIsLeftOut(out, screen, *fitting);
    } else {
        printBlocks(out, headings(), wholeRows(), screen);
    }
}

std::vector<ColumnNeeds> TextTable::needs() const
{
    std::vector<ColumnNeeds> needs;
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        const Column &column = columns_[i];
        const std::size_t least = leastWidth(displayWidth(column.heading), column.elide);
        const bool isCut = column.isCut && column.spareRank == 0;
        needs.push_back(
            {widths_[i], isCut ? std::min(widths_[i], least) : widths_[i], column.spareRank});
    }
    return needs;
}

void TextTable::printRows(std::ostream &out, const Screen &screen, const ColumnWidths &widths) const
{
    out << inked(line(headings(), widths), Ink::Bold, screen) << '\n';
    for (const Row &row : rows_)
        out << line(row, widths) << '\n';
}

void TextTable::printWhatIsLeftOut(std::ostream &out, const Screen &screen,
                                   const ColumnWidths &widths) const
{
    std::vector<std::string> leftOut;
    for (std::size_t i = 0; i < columns_.size(); ++i)
        if (!widths[i])
            leftOut.push_back(columns_[i].heading);
    if (leftOut.empty())
        return;
    out << '\n';
    printParagraph(
        out, screen,
        translate("columns for which the terminal is too narrow: {0}", listForPeople(leftOut)));
}

std::string TextTable::line(const Row &row, const ColumnWidths &widths) const
{
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i) {
        if (!widths[i])
            continue;
        line += line.empty() ? "" : gap;
        const std::string cell = columns_[i].isList ? shownItems(row[i], *widths[i])
                                                    : elided(row[i], *widths[i], columns_[i].elide);
        line += padded(cell, *widths[i], columns_[i].align == Align::Right);
    }
    return line.erase(line.find_last_not_of(' ') + 1);
}

std::string TextTable::whole(std::size_t column, const std::string &cell) const
{
    return columns_[column].isList ? shownItems(cell) : cell;
}

std::vector<TextTable::Row> TextTable::wholeRows() const
{
    std::vector<Row> rows = rows_;
    for (Row &row : rows)
        for (std::size_t i = 0; i < row.size(); ++i)
            row[i] = whole(i, row[i]);
    return rows;
}

TextTable::Row TextTable::headings() const
{
    Row headings;
    for (const Column &column : columns_)
        headings.push_back(column.heading);
    return headings;
}

void printBlocks(std::ostream &out, const std::vector<std::string> &headings,
                 const std::vector<std::vector<std::string>> &rows, const Screen &screen)
{
    const Layout layout =
        layoutOf(headings, screen.columns.value_or(std::numeric_limits<std::size_t>::max()));
    const char *between = "";
    for (const std::vector<std::string> &row : rows) {
        out << between;
        between = "\n";
        for (std::size_t i = 0; i < headings.size(); ++i) {
            if (row[i].empty())
                continue;
            std::string label = padded(elided(headings[i], layout.headings), layout.headings);
            label = inked(label, Ink::Bold, screen);
            for (const std::string &line : wrapped(row[i], layout.values)) {
                out << label << gap << line << '\n';
                label = std::string(layout.headings, ' ');
            }
        }
    }
}

} // namespace iosphoto::tool
