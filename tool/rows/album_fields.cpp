#include "rows/album_fields.h"

#include "catalogue/album_kinds.h"
#include "rows/values.h"
#include "text/translate.h"
#include "time/time_text.h"

#include <limits>

namespace iosphoto::tool {

namespace {

using Row = AlbumRow;

Value text(const std::string &text)
{
    return text;
}

Value number(std::int64_t number)
{
    return number;
}

/// The name that somebody gave; built-in albums are called by their kind.
Value ownName(const Row &row)
{
    return row.album.albumKind == AlbumKind::User ? text(shownName(row.album)) : Value();
}

/// Of the time itself, so that the first day is none after the last; a record's own day can be that
/// of another time.
Value dayOf(const std::optional<CoreDataTime> &time)
{
    const auto unixTime = time ? unixTimeOf(*time) : std::nullopt;
    return unixTime ? text(localDayText(*unixTime)) : Value();
}

std::vector<Field<Row>> facts()
{
    return {
        {{"index", Type::Number, translate("#")},
         [](const Row &row) { return number(row.album.albumIndex); }},
        {{"kind", Type::Text}, [](const Row &row) { return text(kindName(row.album)); }},
        {{"kindCode", Type::Number}, [](const Row &row) { return number(row.album.albumKind); }},
        {{"englishKind", Type::Text}, [](const Row &row) { return text(englishKind(row.album)); }},
        {{"name", Type::Text},
         [](const Row &row) { return text(row.album.albumName.toStdString()); }},
        {{"uuid", Type::Text, translate("UUID")},
         [](const Row &row) { return knownText(row.album.albumUuid); }},
        {{"count", Type::Number, translate("COUNT")},
         [](const Row &row) { return number(row.album.albumCount); }},
        {{"photoCount", Type::Number},
         [](const Row &row) { return number(std::int64_t(row.album.photos.size())); }},
        {{"bytes", Type::Bytes, translate("SIZE")},
         [](const Row &row) { return number(row.bytes); }},
        {{"firstCreated", Type::Time}, [](const Row &row) { return timeValue(row.first); }},
        {{"lastCreated", Type::Time}, [](const Row &row) { return timeValue(row.last); }},
        {{"isSmart", Type::Flag}, [](const Row &row) { return Value(row.album.isSmartAlbum); }},
        {{"collectsFromAlbums", Type::Flag},
         [](const Row &row) { return Value(collectsFromAlbums(row.album)); }},
    };
}

std::vector<Field<Row>> viewsForPeople()
{
    constexpr bool isFact = false;
    return {
        {{"shownKind", Type::Text, translate("KIND")},
         [](const Row &row) { return text(shownKind(row.album)); },
         isFact},
        {{"ownName", Type::Text, translate("NAME")}, ownName, isFact},
        {{"firstDay", Type::Text, translate("FIRST")},
         [](const Row &row) { return dayOf(row.first); },
         isFact},
        {{"lastDay", Type::Text, translate("LAST")},
         [](const Row &row) { return dayOf(row.last); },
         isFact},
    };
}

} // namespace

AlbumRow::AlbumRow(const CAlbumGroup &group, const KnownDates &dates) : album(group)
{
    for (const CPhotoData *photo : group.photos) {
        if (__builtin_add_overflow(bytes, photo->fileSize, &bytes)) // a database can claim anything
            bytes = std::numeric_limits<std::int64_t>::max();
        const auto created = dates.created(*photo);
        if (!created || !isOfTheCalendar(*created))
            continue;
        first = std::min(first.value_or(*created), *created);
        last = std::max(last.value_or(*created), *created);
    }
}

FieldTable<AlbumRow> albumFields()
{
    FieldTable<AlbumRow> table;
    for (const auto &part : {facts(), viewsForPeople()})
        table.fields.insert(table.fields.end(), part.begin(), part.end());
    table.inTables = {"index", "shownKind", "ownName", "count",
                      "bytes", "firstDay",  "lastDay", "uuid"};
    table.spare = {"uuid", "bytes"};
    return table;
}

} // namespace iosphoto::tool
