#include "catalogue/trash.h"

#include "model/trash.h"

#include <fmt/format.h>

#include <set>

namespace iosphoto::tool {

Trash::Trash(const CopyDatabase &database)
{
    const std::string query = fmt::format(
        "select ZUUID, ZTRASHEDDATE from {} where ZTRASHEDSTATE = 1", database.assetTable());
    database.forEachRow(query, [&](const QueryRow &row) {
        Entry &entry = entries_[row.text(0)];
        if (!row.isNull(1))
            entry.trashedAt = row.real(1);
        entry.rawDate = row.int32(1);
    });
}

std::optional<double> Trash::trashedAt(const std::string &uuid) const
{
    const auto found = entries_.find(uuid);
    return found != entries_.end() ? found->second.trashedAt : std::nullopt;
}

int Trash::leftOutOf(const std::vector<CAlbumGroup> &catalogue, std::int64_t asOf) const
{
    std::set<std::string> leftOut;
    for (const auto &[uuid, entry] : entries_)
        if (isTrashedTooLong(entry.rawDate, asOf))
            leftOut.insert(uuid);
    if (leftOut.empty())
        return 0;
    for (const CAlbumGroup &album : catalogue)
        for (const CPhotoData *photo : album.photos)
            leftOut.erase(photo->uuid);
    return static_cast<int>(leftOut.size());
}

} // namespace iosphoto::tool
