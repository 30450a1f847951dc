#include "output/text_table.h"

#include "output/column_widths.h"
#include "output/display_width.h"
#include "output/printable.h"
#include "output/row_blocks.h"

#include <algorithm>
#include <utility>

namespace iosphoto::tool {

TextTable::TextTable(const std::vector<Column> &columns)
{
    for (const Column &column : columns) {
        headings_.push_back(printable(column.heading));
        alignments_.push_back(column.align);
        widths_.push_back(displayWidth(headings_.back()));
    }
}

void TextTable::add(const std::vector<std::string> &cells)
{
    Row row;
    for (std::size_t i = 0; i < headings_.size(); ++i) {
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
    for (std::size_t i = 0; i < headings_.size(); ++i)
        if (alignments_[i] == Align::Left)
            least[i] = std::min(least[i], leastWidth(displayWidth(headings_[i])));
    if (const auto narrowed = narrowedWidths(widths_, least, *screen.columns))
        printRows(out, screen, *narrowed);
    else
        printBlocks(out, headings_, rows_, screen);
}

void TextTable::printRows(std::ostream &out, const Screen &screen,
                          const std::vector<std::size_t> &widths) const
{
    out << inked(line(headings_, widths), Ink::Bold, screen) << '\n';
    for (const Row &row : rows_)
        out << line(row, widths) << '\n';
}

std::string TextTable::line(const Row &row, const std::vector<std::size_t> &widths) const
{
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i) {
        line += i > 0 ? columnGap : "";
        line += padded(shortened(row[i], widths[i]), widths[i], alignments_[i] == Align::Right);
    }
    return line.erase(line.find_last_not_of(' ') + 1);
}

} // namespace iosphoto::tool
