#include "output/text_table.h"

#include "output/column_widths.h"
#include "output/printable.h"
#include "output/row_blocks.h"

#include <algorithm>
#include <utility>

namespace iosphoto::tool {

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
        row.push_back(printable(cells.at(i)));
        widths_[i] = std::max(widths_[i], displayWidth(row.back()));
    }
    rows_.push_back(std::move(row));
}

void TextTable::print(std::ostream &out, const Screen &screen) const
{
    if (!screen.columns) {
        printRows(out, screen, widths_);
        return;
    }
    std::vector<std::size_t> least = widths_;
    for (std::size_t i = 0; i < columns_.size(); ++i)
        if (columns_[i].isCut)
            least[i] =
                std::min(least[i], leastWidth(displayWidth(columns_[i].heading), columns_[i].kept));
    if (const auto narrowed = narrowedWidths(widths_, least, *screen.columns))
        printRows(out, screen, *narrowed);
    else
        printBlocks(out, headings(), rows_, screen);
}

void TextTable::printRows(std::ostream &out, const Screen &screen,
                          const std::vector<std::size_t> &widths) const
{
    out << inked(line(headings(), widths), Ink::Bold, screen) << '\n';
    for (const Row &row : rows_)
        out << line(row, widths) << '\n';
}

std::string TextTable::line(const Row &row, const std::vector<std::size_t> &widths) const
{
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i) {
        line += i > 0 ? columnGap : "";
        const std::string cell = shortened(row[i], widths[i], columns_[i].kept);
        line += padded(cell, widths[i], columns_[i].align == Align::Right);
    }
    return line.erase(line.find_last_not_of(' ') + 1);
}

TextTable::Row TextTable::headings() const
{
    Row headings;
    for (const Column &column : columns_)
        headings.push_back(column.heading);
    return headings;
}

} // namespace iosphoto::tool
