#include "catalogue/trash.h"

#include "model/trash.h"
#include "schema/asset_tables.h"

#include <fmt/format.h>

#include <algorithm>
#include <limits>
#include <set>

namespace iosphoto::tool {

Trash::Trash(const CopyDatabase &database, UnixTime asOf) : asOf_(asOf)
{
    const std::string query = fmt::format(
        "select ZUUID, ZTRASHEDDATE, Z_PK from {} where ZTRASHEDSTATE = 1 and ZTRASHEDDATE "
        "is not null",
        assetTableOf(database));
    database.forEachRow(query, [&](const QueryRow &row) {
        trashedAt_[{row.text(0), row.int32(2)}] = {CoreDataTime{row.real(1)}, row.int32(1)};
    });
}

std::optional<TrashStay> Trash::stayOf(const Asset &asset) const
{
    if (!asset.has(&CPhotoData::isDeleted))
        return std::nullopt;
    const Date *const date = dateOf(asset.uuid(), asset.facts().assetId);
    const auto trashed = date != nullptr ? unixTimeOf(date->time) : std::nullopt;
    if (!trashed)
        return std::nullopt;
    const UnixTime goes = {trashed->seconds + trashKeptFor};
    const std::int64_t left = std::max<std::int64_t>(goes.seconds - asOf_.seconds, 0);
    return TrashStay{*trashed, goes, (left + secondsPerDay - 1) / secondsPerDay};
}

bool Trash::isEmptiedOf(const CPhotoData &photo) const
{
    const Date *const date = dateOf(photo.uuid, photo.assetId);
    return photo.isDeleted && isTrashedTooLong(date != nullptr ? date->raw : 0, asOf_.seconds);
}

const Trash::Date *Trash::dateOf(const std::string &uuid, std::int32_t key) const
{
    auto found = trashedAt_.find({uuid, key});
    if (found == trashedAt_.end()) // not every record knows the key
        found = trashedAt_.lower_bound({uuid, std::numeric_limits<std::int32_t>::min()});
    return found != trashedAt_.end() && found->first.first == uuid ? &found->second : nullptr;
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
