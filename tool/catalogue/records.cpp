#include "catalogue/records.h"

#include <stdexcept>

namespace iosphoto::tool {

Records::Records(const std::vector<CAlbumGroup> &catalogue, bool areShown)
    : catalogue_(&catalogue), areShown_(areShown)
{
    std::size_t end = 0;
    starts_.push_back(0);
    for (const CAlbumGroup &album : catalogue) {
        end += album.photos.size();
        if (end >= noRecord)
            throw std::length_error("too many records");
        starts_.push_back(static_cast<RecordNumber>(end));
    }
}

} // namespace iosphoto::tool
