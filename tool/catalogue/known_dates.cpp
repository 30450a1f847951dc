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
std::string isEpoch(const std::string &column)
{
    return fmt::format("(typeof({0}) in ('integer', 'real') and {0} > -1 and {0} < 1)", column);
}

std::string isNoNumber(const std::string &column)
{
    return fmt::format("(typeof({0}) in ('text', 'blob'))", column);
}

/// The columns of the three dates; null for one that there is not.
struct DateColumns
{
    explicit DateColumns(const CopyDatabase &database)
        : table(assetTableOf(database)), created(nameOf(database, "ZDATECREATED")),
          modified(nameOf(database, "ZMODIFICATIONDATE")),
          // The library takes an asset for added when it was created where there is no other date.
          added(database.hasColumn(table, "ZADDEDDATE") ? "ZADDEDDATE" : created)
    {
    }

    std::string nameOf(const CopyDatabase &database, const char *column) const
    {
        return database.hasColumn(table, column) ? column : "null";
    }

    /// The rows in which a test is true of one of them, and of which.
    template <typename Test>
    std::string query(Test test) const
    {
        return fmt::format("select ZUUID, {0}, {1}, {2} from {3} where {0} or {1} or {2}",
                           test(created), test(modified), test(added), table);
    }

    std::string table;
    std::string created;
    std::string modified;
    std::string added;
};

} // namespace

KnownDates::KnownDates(const CopyDatabase &database, const std::vector<CAlbumGroup> &catalogue)
{
    const DateColumns columns(database);
    const auto read = [&](const std::string &query, ByUuid &byUuid) {
        database.forEachRow(query, [&](const QueryRow &row) {
            OfDates &dates = byUuid[uuidOf(row, 0)];
            dates.created = dates.created || row.int32(1) != 0;
            dates.modified = dates.modified || row.int32(2) != 0;
            dates.added = dates.added || row.int32(3) != 0;
        });
    };
    read(columns.query(isNoNumber), texts_);
    if (mayLackDates(catalogue))
        read(columns.query(isEpoch), atEpoch_);
}

std::optional<CoreDataTime> KnownDates::created(const CPhotoData &photo) const
{
    return known(photo, &CPhotoData::createdTime, &OfDates::created);
}

std::optional<CoreDataTime> KnownDates::modified(const CPhotoData &photo) const
{
    return known(photo, &CPhotoData::modifiedTime, &OfDates::modified);
}

std::optional<CoreDataTime> KnownDates::added(const CPhotoData &photo) const
{
    return known(photo, &CPhotoData::addedTime, &OfDates::added);
}

std::optional<CoreDataTime> KnownDates::known(const CPhotoData &photo, double CPhotoData::*time,
                                              bool OfDates::*date) const
{
    const auto isIn = [&](const ByUuid &byUuid) {
        const auto found = byUuid.empty() ? byUuid.end() : byUuid.find(photo.uuid);
        return found != byUuid.end() && found->second.*date;
    };
    if (isIn(texts_) || (photo.*time == 0 && !isIn(atEpoch_)))
        return std::nullopt;
    return CoreDataTime{photo.*time};
}

} // namespace iosphoto::tool
