#include "output/text_table.h"

#include "output/printable.h"

#include <algorithm>
#include <utility>

namespace iosphoto::tool {

TextTable::TextTable(std::vector<Column> columns)
    : columns_(std::move(columns)), widths_(columns_.size(), 0)
{
    std::vector<std::string> headings;
    for (const Column &column : columns_)
        headings.push_back(column.heading);
    add(headings);
}

void TextTable::add(const std::vector<std::string> &cells)
{
    std::vector<std::string> row;
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        row.push_back(printable(cells.at(i)));
        widths_[i] = std::max(widths_[i], displayWidth(row.back()));
    }
    rows_.push_back(std::move(row));
}

void TextTable::print(std::ostream &out) const
{
    for (const auto &row : rows_) {
        std::string line;
        for (std::size_t i = 0; i < row.size(); ++i) {
            const std::string padding(widths_[i] - displayWidth(row[i]), ' ');
            line += i > 0 ? "  " : "";
            line += columns_[i].align == Align::Left ? row[i] + padding : padding + row[i];
        }
        line.erase(line.find_last_not_of(' ') + 1);
        out << line << '\n';
    }
}

} // namespace iosphoto::tool
