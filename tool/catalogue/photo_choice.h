#ifndef IOSPHOTO_TOOL_PHOTO_CHOICE_H
#define IOSPHOTO_TOOL_PHOTO_CHOICE_H

#include "catalogue/photo_filter.h"
#include "catalogue/photo_order.h"

namespace iosphoto::tool {

/// Which photos to show, and in which order.
struct PhotoChoice
{
    PhotoFilter filter;
    PhotoOrder order = PhotoOrder::Date;
    bool isReversed = false;
    bool hasFrames = false; ///< every frame of a burst, not one for all
    std::optional<std::size_t> limit;
};

/// Of the photos of a library those that are chosen.
std::vector<Asset> choosePhotos(const PhotoChoice &choice, const Library &library,
                                const AssetList &assets);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PHOTO_CHOICE_H
