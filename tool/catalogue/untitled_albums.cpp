#include "catalogue/untitled_albums.h"

#include "catalogue/album_kinds.h"
#include "catalogue/row_uuid.h"
#include "schema/asset_tables.h"
#include "schema/known_schemas.h"

#include <fmt/format.h>

#include <algorithm>
#include <set>

namespace iosphoto::tool {

namespace {

/// The uuid of each untitled album with each photo in it.
std::string query(const CopyDatabase &database, const ProbedSchema &schema)
{
    const StatementVariant *const contents = statementsFor(schema.device).back();
    const EntityNumbers &numbers = schema.numbers;
    const std::string assets = assetTableOf(database);
    return fmt::format(
        "select album.ZUUID, asset.Z_PK from ZGENERICALBUM album "
        "join Z_{0}ASSETS place on place.Z_{0}ALBUMS = album.Z_PK "
        "join {2} asset on asset.Z_PK = place.Z_{1}ASSETS where album.ZTITLE = ''{3}",
        numbers.*contents->placeholders.numbers[0], numbers.*contents->placeholders.numbers[1],
        assets, database.hasColumn(assets, "ZTRASHEDSTATE") ? " and asset.ZTRASHEDSTATE = 0" : "");
}

} // namespace

UntitledContents contentsOfUntitled(const CopyDatabase &database, const ReadingFacts &reading)
{
    std::set<std::string> untitled; // ordered: no choice of uuids makes it slow
    for (const CAlbumGroup &album : reading.catalogue)
        if (isUntitled(album) && album.photos.empty())
            untitled.insert(album.albumUuid);
    if (untitled.empty())
        return {};
    std::set<std::string> albums;
    std::set<std::int64_t> photos;
    database.forEachRow(query(database, reading.schema), [&](const QueryRow &row) {
        const std::string uuid = uuidOf(row, 0);
        if (untitled.count(uuid) == 0)
            return;
        albums.insert(uuid);
        photos.insert(row.int64(1));
    });
    return {static_cast<std::int64_t>(albums.size()), static_cast<std::int64_t>(photos.size())};
}

} // namespace iosphoto::tool
