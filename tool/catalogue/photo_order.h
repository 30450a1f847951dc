#ifndef IOSPHOTO_TOOL_PHOTO_ORDER_H
#define IOSPHOTO_TOOL_PHOTO_ORDER_H

#include "catalogue/assets.h"
#include "catalogue/known_dates.h"
#include "catalogue/trash.h"

#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// What photos are sorted by. Names from A to Z; times from the newest, numbers from the largest,
/// those that have none last.
enum class PhotoOrder { Date, Name, Size, Duration, Added, Modified, Deleted };

/// The order that somebody names, such as "date"; nothing for an unknown one.
std::optional<PhotoOrder> orderNamed(const std::string &name);

std::vector<std::string> orderNames();

/// The key of the field that photos are sorted by.
const char *fieldOf(PhotoOrder order);

/// How to sort photos, and how many of them are wanted.
struct PhotoSorting
{
    PhotoOrder order = PhotoOrder::Date;
    bool isReversed = false;
    std::size_t most = std::numeric_limits<std::size_t>::max(); ///< the first in the order
};

/// Sorts photos and drops those beyond the most that are wanted. Those that are alike stay in their
/// order, or come in the opposite one when it is reversed.
/// @param trash, dates  of their library
void sortPhotos(ChosenAssets &photos, const PhotoSorting &sorting, const Trash &trash,
                const KnownDates &dates);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PHOTO_ORDER_H
