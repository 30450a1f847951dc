#ifndef IOSPHOTO_TOOL_TRASH_STAY_H
#define IOSPHOTO_TOOL_TRASH_STAY_H

#include "catalogue/assets.h"
#include "catalogue/library.h"

namespace iosphoto::tool {

/// An asset's time in Recently Deleted; Unix times.
struct TrashStay
{
    std::int64_t trashed;
    std::int64_t goes;     ///< when the device removes it for good
    std::int64_t daysLeft; ///< from the moment that the library is read as of; a begun day counts
};

/// Nothing for an asset that is not there, and where the database does not say since when.
std::optional<TrashStay> trashStay(const Library &library, const Asset &asset);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_TRASH_STAY_H
