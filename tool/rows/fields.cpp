#include "rows/fields.h"

#include "process/failure.h"
#include "text/did_you_mean.h"
#include "text/translate.h"

#include <fmt/ranges.h>

#include <algorithm>

namespace iosphoto::tool {

std::vector<std::size_t> placesOfKeys(const std::vector<std::string> &all,
                                      const std::vector<std::string> &chosen)
{
    std::vector<std::size_t> places;
    for (const std::string &key : chosen) {
        const auto found = std::find(all.begin(), all.end(), key);
        if (found == all.end())
            throw Failure(WrongUsage, translate("--fields: there is no field '{0}'; there are {1}",
                                                key, fmt::join(all, ", ")) +
                                          didYouMean(key, all));
        const auto place = static_cast<std::size_t>(found - all.begin());
        if (std::find(places.begin(), places.end(), place) == places.end())
            places.push_back(place);
    }
    return places;
}

} // namespace iosphoto::tool
