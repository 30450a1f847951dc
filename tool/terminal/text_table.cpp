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
    measure(cells);
    rows_.push_back(cells);
}

void TextTable::measure(const std::vector<std::string> &cells)
{
    const Row row = printableRow(cells);
    for (std::size_t i = 0; i < columns_.size(); ++i)
        widths_[i] = std::max(widths_[i], displayWidth(whole(i, row[i])));
}

void TextTable::print(std::ostream &out, const Screen &screen) const
{
    print(out, screen, [this](const TakeCells &take) {
        for (const Row &row : rows_)
            take(row);
    });
}

void TextTable::print(std::ostream &out, const Screen &screen, const CellSource &rows) const
{
    if (!screen.columns) {
        printRows(out, screen, rows, wholeWidths(needs()));
    } else if (const auto fitting = widthsThatFit(needs(), *screen.columns)) {
        printRows(out, screen, rows, *fitting);
        printWhatIsLeftOut(out, screen, *fitting);
    } else {
        printBlocks(out, screen, rows);
    }
}

std::vector<ColumnNeeds> TextTable::needs() const
{
    std::vector<ColumnNeeds> needs;
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        const Column &column = columns_[i];
        const std::size_t least = leastWidth(displayWidth(column.heading), column.elide);
        const bool isCut = column.isCut && column.spareRank == 0;
        const std::size_t cut = std::min(widths_[i], least);
        needs.push_back({widths_[i], isCut ? cut : widths_[i], column.spareRank,
                         isCut || column.isCutLast ? cut : widths_[i]});
    }
    return needs;
}

void TextTable::printRows(std::ostream &out, const Screen &screen, const CellSource &rows,
                          const ColumnWidths &widths) const
{
    out << inked(line(headings(), widths), Ink::Bold, screen) << '\n';
    rows([&](const std::vector<std::string> &cells) {
        out << line(printableRow(cells), widths) << '\n';
    });
}

void TextTable::printBlocks(std::ostream &out, const Screen &screen, const CellSource &rows) const
{
    const char *between = "";
    rows([&](const std::vector<std::string> &cells) {
        out << std::exchange(between, "\n");
        tool::printBlocks(out, headings(), {wholeRow(cells)}, screen);
    });
}

TextTable::Row TextTable::printableRow(const std::vector<std::string> &cells) const
{
    Row row;
    for (std::size_t i = 0; i < columns_.size(); ++i)
        row.push_back(columns_[i].isList ? cells.at(i) : printable(cells.at(i)));
    return row;
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
    std::string text =
        translate("columns for which the terminal is too narrow: {0}", listForPeople(leftOut));
    for (std::size_t i = 0; i < columns_.size(); ++i)
        if (columns_[i].isCutLast && widths[i] < widths_[i])
            text += translate("; ") +
                    translate("{0} is cut, and whole in --csv and --json", columns_[i].heading);
    out << '\n';
    printParagraph(out, screen, text);
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

TextTable::Row TextTable::wholeRow(const std::vector<std::string> &cells) const
{
    Row row = printableRow(cells);
    for (std::size_t i = 0; i < row.size(); ++i)
        row[i] = whole(i, row[i]);
    return row;
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
