#ifndef IOSPHOTO_TOOL_PHOTO_ORDER_H
#define IOSPHOTO_TOOL_PHOTO_ORDER_H

#include "catalogue/assets.h"
#include "catalogue/library.h"

namespace iosphoto::tool {

/// What photos are sorted by. Names from A to Z; times from the newest, numbers from the largest,
/// those that have none last.
enum class PhotoOrder { Date, Name, Size, Duration, Added, Modified, Deleted };

/// The order that somebody names, such as "date". Throws Failure for an unknown one, naming those
/// that are known.
PhotoOrder orderNamed(const std::string &name);

/// Sorts photos; those that are alike stay in their order.
void sortPhotos(std::vector<Asset> &photos, PhotoOrder order, const Library &library);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PHOTO_ORDER_H
