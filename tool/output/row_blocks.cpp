#include "output/row_blocks.h"

#include "output/column_widths.h"
#include "output/display_width.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace iosphoto::tool {

namespace {

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
            std::string label = padded(shortened(headings[i], layout.headings), layout.headings);
            label = inked(label, Ink::Bold, screen);
            for (const std::string &line : wrapped(row[i], layout.values)) {
                out << label << columnGap << line << '\n';
                label = std::string(layout.headings, ' ');
            }
        }
    }
}

} // namespace iosphoto::tool
