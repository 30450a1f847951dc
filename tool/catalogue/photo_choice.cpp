#include "catalogue/photo_choice.h"

#include "catalogue/burst_frames.h"

#include <algorithm>

namespace iosphoto::tool {

std::vector<Asset> choosePhotos(const PhotoChoice &choice, const Library &library,
                                const AssetList &assets)
{
    std::vector<Asset> chosen = photosThatFit(choice.filter, library, assets);
    if (!choice.hasFrames)
        chosen = BurstFrames::oneOfEach(chosen);
    sortPhotos(chosen, choice.order, library);
    if (choice.isReversed)
        std::reverse(chosen.begin(), chosen.end());
    if (choice.limit && *choice.limit < chosen.size())
        chosen.erase(chosen.begin() + static_cast<std::ptrdiff_t>(*choice.limit), chosen.end());
    return chosen;
}

} // namespace iosphoto::tool
