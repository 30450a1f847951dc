#ifndef IOSPHOTO_TOOL_COLUMN_LAYOUT_H
#define IOSPHOTO_TOOL_COLUMN_LAYOUT_H

#include <cstddef>
#include <optional>
#include <vector>

namespace iosphoto::tool {

/// What a column of a table takes, as far as that decides which columns fit into a line.
struct ColumnNeeds
{
    std::size_t width;             ///< of its widest cell
    std::size_t least;             ///< below which it is of no use
    std::size_t spareRank = 0;     ///< the lower ones are left out first; 0: never
    std::size_t lastLeast = least; ///< the same where leaving out others does not help
};

constexpr std::size_t columnGap = 2;

/// The width of each column, nothing for one that is left out.
using ColumnWidths = std::vector<std::optional<std::size_t>>;

/// The widths in which columns fit into a line of `room`: as few as possible are left out, and the
/// widest of the others are made narrower. Nothing where they do not fit at all.
std::optional<ColumnWidths> widthsThatFit(const std::vector<ColumnNeeds> &columns,
                                          std::size_t room);

/// All columns as wide as they are.
ColumnWidths wholeWidths(const std::vector<ColumnNeeds> &columns);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_COLUMN_LAYOUT_H
