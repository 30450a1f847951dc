#include "terminal/text_table.h"

#include "terminal/display_width.h"
#include "text/printable.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <numeric>
#include <optional>
#include <utility>

namespace iosphoto::tool {

namespace {

constexpr const char *columnGap = "  ";

/// The width below which a column that may be cut is of no use: of a path, as much as shows the
/// name of its file.
std::size_t leastWidth(std::size_t headingWidth, Elide elide)
{
    constexpr std::size_t ofText = 16;
    constexpr std::size_t ofPath = 24;
    return std::max(headingWidth, elide == Elide::Left ? ofPath : ofText);
}

std::size_t lineWidth(const std::vector<std::size_t> &widths)
{
    const std::size_t gaps = widths.empty() ? 0 : (widths.size() - 1) * std::strlen(columnGap);
    return std::accumulate(widths.begin(), widths.end(), gaps);
}

/// Makes the widest column that may be cut narrower by one; false if there is none.
bool narrow(std::vector<std::size_t> &widths, const std::vector<std::size_t> &least)
{
    std::size_t widest = widths.size();
    for (std::size_t i = 0; i < widths.size(); ++i)
        if (widths[i] > least[i] && (widest == widths.size() || widths[i] > widths[widest]))
            widest = i;
    if (widest == widths.size())
        return false;
    --widths[widest];
    return true;
}

/// The widths of columns that fit, gaps between them, into `columns`: the widest were made
/// narrower, down to `least`. Nothing where even that does not fit.
std::optional<std::vector<std::size_t>> narrowedWidths(std::vector<std::size_t> widths,
                                                       const std::vector<std::size_t> &least,
                                                       std::size_t columns)
{
    while (lineWidth(widths) > columns)
        if (!narrow(widths, least))
            return std::nullopt;
    return widths;
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
    const std::size_t gap = std::strlen(columnGap);
    const std::size_t most = columns / 2 > gap ? columns / 2 - gap : 0;
    const std::size_t width = std::min(widest, most);
    return {width, columns > width + gap ? columns - width - gap : 1};
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
            least[i] = std::min(least[i],
                                leastWidth(displayWidth(columns_[i].heading), columns_[i].elide));
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
        const std::string cell = elided(row[i], widths[i], columns_[i].elide);
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
                out << label << columnGap << line << '\n';
                label = std::string(layout.headings, ' ');
            }
        }
    }
}

} // namespace iosphoto::tool
