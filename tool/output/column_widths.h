#ifndef IOSPHOTO_TOOL_COLUMN_WIDTHS_H
#define IOSPHOTO_TOOL_COLUMN_WIDTHS_H

#include "output/display_width.h"

#include <optional>
#include <vector>

namespace iosphoto::tool {

inline constexpr const char *columnGap = "  ";

/// The width below which a column that may be cut is of no use: of a path, as much as shows the
/// name of its file.
std::size_t leastWidth(std::size_t headingWidth, Kept kept);

/// The widths of columns that fit, gaps between them, into `columns`: the widest were made
/// narrower, down to `least`. Nothing where even that does not fit.
std::optional<std::vector<std::size_t>> narrowedWidths(std::vector<std::size_t> widths,
                                                       const std::vector<std::size_t> &least,
                                                       std::size_t columns);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_COLUMN_WIDTHS_H
