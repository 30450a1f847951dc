#include "rows/fields.h"

#include <algorithm>

namespace iosphoto::tool {

std::vector<std::size_t> placesOfKeys(const std::vector<std::string> &all,
                                      const std::vector<std::string> &chosen)
{
    std::vector<std::size_t> places;
    for (const std::string &key : chosen) {
        const auto found = std::find(all.begin(), all.end(), key);
        if (found == all.end())
            throw UnknownField{key, all};
        const auto place = static_cast<std::size_t>(found - all.begin());
        if (std::find(places.begin(), places.end(), place) == places.end())
            places.push_back(place);
    }
    return places;
}

} // namespace iosphoto::tool
