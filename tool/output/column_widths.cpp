#include "output/column_widths.h"

#include <algorithm>
#include <cstring>
#include <numeric>

namespace iosphoto::tool {

namespace {

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

} // namespace

std::size_t leastWidth(std::size_t headingWidth, Kept kept)
{
    constexpr std::size_t ofText = 16;
    constexpr std::size_t ofPath = 24;
    return std::max(headingWidth, kept == Kept::End ? ofPath : ofText);
}

std::optional<std::vector<std::size_t>> narrowedWidths(std::vector<std::size_t> widths,
                                                       const std::vector<std::size_t> &least,
                                                       std::size_t columns)
{
    while (lineWidth(widths) > columns)
        if (!narrow(widths, least))
            return std::nullopt;
    return widths;
}

} // namespace iosphoto::tool
