#include "output/utc_offset.h"

#include <fmt/format.h>

#include <cstdlib>

namespace iosphoto::tool {

std::string utcOffset(int seconds)
{
    const int minutes = std::abs(seconds) / 60;
    return fmt::format("{}{:02}:{:02}", seconds < 0 ? '-' : '+', minutes / 60, minutes % 60);
}

} // namespace iosphoto::tool
