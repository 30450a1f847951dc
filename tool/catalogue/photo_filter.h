#ifndef IOSPHOTO_TOOL_PHOTO_FILTER_H
#define IOSPHOTO_TOOL_PHOTO_FILTER_H

#include "catalogue/assets.h"
#include "catalogue/library.h"
#include "catalogue/photo_kinds.h"

namespace iosphoto::tool {

/// Which photos are asked for. One that is asked for fits all that is said.
struct PhotoFilter
{
    std::optional<std::string> album;  ///< see selectAlbums()
    std::optional<std::int64_t> since; ///< Unix time of its creation
    std::optional<std::int64_t> until;
    std::vector<KindTest> kinds; ///< any of them, if there are some
    bool isDeleted = false;
    std::optional<int> trashedWithinDays; ///< before the library's moment; needs isDeleted
    bool isHidden = false;
    bool isFavorite = false;
    bool isEdited = false;
};

/// The photos that fit, in the order of the list. Throws Failure when there is no such album.
std::vector<Asset> photosThatFit(const PhotoFilter &filter, const Library &library,
                                 const AssetList &assets);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PHOTO_FILTER_H
