#ifndef IOSPHOTO_TOOL_ASSETS_H
#define IOSPHOTO_TOOL_ASSETS_H

#include "ios_photo.h"

#include <vector>

namespace iosphoto::tool {

/// One photo or video, put together from the records of it in all albums.
struct Asset
{
    /// The first record, with what others know besides: every flag that any of them has, and the
    /// duration, row key and burst, which not all albums read.
    CPhotoData facts;
    /// The albums that show it, in the catalogue's order.
    std::vector<const CAlbumGroup *> albums;
};

/// Every asset of a catalogue once, in the order in which its albums first show it. Assets are the
/// same when their uuids are; records without one stand for themselves.
std::vector<Asset> assetsOf(const std::vector<CAlbumGroup> &catalogue);

/// Whether one of `albums` shows the asset.
bool isShownBy(const Asset &asset, const std::vector<const CAlbumGroup *> &albums);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_ASSETS_H
