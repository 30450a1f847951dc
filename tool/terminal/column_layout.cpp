#include "terminal/column_layout.h"

#include <algorithm>

namespace iosphoto::tool {

namespace {

std::size_t lineWidth(const ColumnWidths &widths)
{
    std::size_t line = 0;
    for (const auto &width : widths)
        if (width)
            line += *width + (line > 0 ? columnGap : 0);
    return line;
}

/// Makes the widest column that may be cut narrower by one; false if there is none.
bool narrow(ColumnWidths &widths, const std::vector<ColumnNeeds> &columns)
{
    std::optional<std::size_t> *widest = nullptr;
    for (std::size_t i = 0; i < widths.size(); ++i)
        if (widths[i] > columns[i].least && (widest == nullptr || widths[i] > *widest))
            widest = &widths[i];
    if (widest == nullptr)
        return false;
    --**widest;
    return true;
}

ColumnWidths withoutSpare(const std::vector<ColumnNeeds> &columns, std::size_t lastRank)
{
    ColumnWidths widths = wholeWidths(columns);
    for (std::size_t i = 0; i < columns.size(); ++i)
        if (columns[i].spareRank > 0 && columns[i].spareRank <= lastRank)
            widths[i].reset();
    return widths;
}

/// Nothing where the columns do not become so narrow.
std::optional<ColumnWidths> narrowed(ColumnWidths widths, const std::vector<ColumnNeeds> &columns,
                                     std::size_t room)
{
    while (lineWidth(widths) > room)
        if (!narrow(widths, columns))
            return std::nullopt;
    return widths;
}

} // namespace

std::optional<ColumnWidths> widthsThatFit(const std::vector<ColumnNeeds> &columns, std::size_t room)
{
    std::size_t mostRank = 0;
    std::vector<ColumnNeeds> atLast = columns;
    for (ColumnNeeds &column : atLast) {
        mostRank = std::max(mostRank, column.spareRank);
        column.least = column.lastLeast;
    }
    for (std::size_t rank = 0; rank <= mostRank; ++rank)
        if (auto widths = narrowed(withoutSpare(columns, rank), columns, room))
            return widths;
    return narrowed(withoutSpare(columns, mostRank), atLast, room);
}

ColumnWidths wholeWidths(const std::vector<ColumnNeeds> &columns)
{
    ColumnWidths widths;
    for (const ColumnNeeds &column : columns)
        widths.emplace_back(column.width);
    return widths;
}

} // namespace iosphoto::tool
