#include "catalogue/known_dates.h"

#include "catalogue/row_uuid.h"
#include "schema/asset_tables.h"

#include <fmt/format.h>

#include <algorithm>

namespace iosphoto::tool {

namespace {

bool mayLackADate(const CPhotoData &photo)
{
    return photo.createdTime == 0 || photo.modifiedTime == 0 || photo.addedTime == 0;
}

bool mayLackDates(const std::vector<CAlbumGroup> &catalogue)
{
    return std::any_of(catalogue.begin(), catalogue.end(), [](const CAlbumGroup &album) {
        return std::any_of(album.photos.begin(), album.photos.end(),
                           [](const CPhotoData *photo) { return mayLackADate(*photo); });
    });
}

/// Whether a column holds a time of which whole seconds are 0.
std::string isEpoch(const CopyDatabase &database, const std::string &table, const char *column)
{
    return database.hasColumn(table, column)
               ? fmt::format("(typeof({0}) in ('integer', 'real') and {0} > -1 and {0} < 1)",
                             column)
               : "0";
}

} // namespace

KnownDates::KnownDates(const CopyDatabase &database, const std::vector<CAlbumGroup> &catalogue)
{
    if (!mayLackDates(catalogue))
        return;
    const std::string table = assetTableOf(database);
    const std::string created = isEpoch(database, table, "ZDATECREATED");
    const std::string modified = isEpoch(database, table, "ZMODIFICATIONDATE");
    // The library takes an asset for added when it was created where there is no other date.
    const std::string added =
        database.hasColumn(table, "ZADDEDDATE") ? isEpoch(database, table, "ZADDEDDATE") : created;
    database.forEachRow(fmt::format("select ZUUID, {0}, {1}, {2} from {3} where {0} or {1} or {2}",
                                    created, modified, added, table),
                        [&](const QueryRow &row) {
                            AtEpoch &dates = atEpoch_[uuidOf(row, 0)];
                            dates.created = dates.created || row.int32(1) != 0;
                            dates.modified = dates.modified || row.int32(2) != 0;
                            dates.added = dates.added || row.int32(3) != 0;
                        });
}

std::optional<CoreDataTime> KnownDates::created(const CPhotoData &photo) const
{
    return known(photo, &CPhotoData::createdTime, &AtEpoch::created);
}

std::optional<CoreDataTime> KnownDates::modified(const CPhotoData &photo) const
{
    return known(photo, &CPhotoData::modifiedTime, &AtEpoch::modified);
}

std::optional<CoreDataTime> KnownDates::added(const CPhotoData &photo) const
{
    return known(photo, &CPhotoData::addedTime, &AtEpoch::added);
}

std::optional<CoreDataTime> KnownDates::known(const CPhotoData &photo, double CPhotoData::*time,
                                              bool AtEpoch::*isAtEpoch) const
{
    if (photo.*time != 0)
        return CoreDataTime{photo.*time};
    const auto found = atEpoch_.find(photo.uuid);
    return found != atEpoch_.end() && found->second.*isAtEpoch ? std::optional(CoreDataTime{})
                                                               : std::nullopt;
}

} // namespace iosphoto::tool
