#include "catalogue/trash.h"

#include "model/trash.h"
#include "schema/asset_tables.h"

#include <fmt/format.h>

#include <algorithm>
#include <set>

namespace iosphoto::tool {

Trash::Trash(const CopyDatabase &database, UnixTime asOf) : asOf_(asOf)
{
    const std::string query = fmt::format(
        "select ZUUID, ZTRASHEDDATE from {} where ZTRASHEDSTATE = 1", assetTableOf(database));
    database.forEachRow(query, [&](const QueryRow &row) {
        Entry &entry = entries_[row.text(0)];
        if (!row.isNull(1))
            entry.trashedAt = CoreDataTime{row.real(1)};
        entry.rawDate = row.int32(1);
    });
}

std::optional<TrashStay> Trash::stayOf(const Asset &asset) const
{
    if (!asset.has(&CPhotoData::isDeleted))
        return std::nullopt;
    const auto found = entries_.find(asset.uuid());
    if (found == entries_.end() || !found->second.trashedAt)
        return std::nullopt;
    const auto trashed = unixTimeOf(*found->second.trashedAt);
    if (!trashed)
        return std::nullopt;
    const UnixTime goes = {trashed->seconds + trashKeptFor};
    const std::int64_t left = std::max<std::int64_t>(goes.seconds - asOf_.seconds, 0);
    return TrashStay{*trashed, goes, (left + secondsPerDay - 1) / secondsPerDay};
}

int Trash::leftOutOf(const std::vector<CAlbumGroup> &catalogue) const
{
    std::set<std::string> leftOut;
    for (const auto &[uuid, entry] : entries_)
        if (isTrashedTooLong(entry.rawDate, asOf_.seconds))
            leftOut.insert(uuid);
    if (leftOut.empty())
        return 0;
    for (const CAlbumGroup &album : catalogue)
        for (const CPhotoData *photo : album.photos)
            leftOut.erase(photo->uuid);
    return static_cast<int>(leftOut.size());
}

} // namespace iosphoto::tool
