#include "catalogue/trash.h"

#include "model/trash.h"
#include "schema/asset_tables.h"

#include <fmt/format.h>

#include <algorithm>
#include <set>

namespace iosphoto::tool {

Trash::Trash(const CopyDatabase &database, UnixTime asOf) : asOf_(asOf)
{
    const std::string query =
        fmt::format("select ZUUID, ZTRASHEDDATE from {} where ZTRASHEDSTATE = 1 and ZTRASHEDDATE "
                    "is not null",
                    assetTableOf(database));
    database.forEachRow(query, [&](const QueryRow &row) {
        trashedAt_[row.text(0)] = {CoreDataTime{row.real(1)}, row.int32(1)};
    });
}

std::optional<TrashStay> Trash::stayOf(const Asset &asset) const
{
    if (!asset.has(&CPhotoData::isDeleted))
        return std::nullopt;
    const auto found = trashedAt_.find(asset.uuid());
    const auto trashed = found != trashedAt_.end() ? unixTimeOf(found->second.time) : std::nullopt;
    if (!trashed)
        return std::nullopt;
    const UnixTime goes = {trashed->seconds + trashKeptFor};
    const std::int64_t left = std::max<std::int64_t>(goes.seconds - asOf_.seconds, 0);
    return TrashStay{*trashed, goes, (left + secondsPerDay - 1) / secondsPerDay};
}

bool Trash::isEmptiedOf(const CPhotoData &photo) const
{
    const auto found = trashedAt_.find(photo.uuid);
    const std::int32_t date = found != trashedAt_.end() ? found->second.raw : 0;
    return photo.isDeleted && isTrashedTooLong(date, asOf_.seconds);
}

std::int64_t Trash::emptiedPhotos(const std::vector<CAlbumGroup> &catalogue) const
{
    std::int64_t count = 0;
    for (const CAlbumGroup &album : catalogue)
        if (album.albumKind == AlbumKind::RecentlyDeleted)
            count += std::count_if(album.photos.begin(), album.photos.end(),
                                   [&](const CPhotoData *photo) { return isEmptiedOf(*photo); });
    return count;
}

} // namespace iosphoto::tool
