#include "catalogue/trash_stay.h"

#include "model/trash.h"

#include <algorithm>

namespace iosphoto::tool {

namespace {

constexpr std::int64_t day = std::int64_t(24) * 60 * 60;

} // namespace

std::optional<TrashStay> trashStay(const Library &library, const Asset &asset)
{
    if (!asset.has(&CPhotoData::isDeleted))
        return std::nullopt;
    const std::optional<double> since = library.trash().trashedAt(asset.uuid());
    const auto trashed = since ? unixTimeOf(*since) : std::nullopt;
    if (!trashed)
        return std::nullopt;
    const std::int64_t goes = *trashed + trashKeptFor;
    const std::int64_t left = std::max<std::int64_t>(goes - library.asOf().unixTime, 0);
    return TrashStay{*trashed, goes, (left + day - 1) / day};
}

} // namespace iosphoto::tool
