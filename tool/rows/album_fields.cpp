#include "rows/album_fields.h"

#include "catalogue/album_kinds.h"
#include "rows/values.h"
#include "text/translate.h"

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
    return row.album.albumKind == AlbumKind::User ? text(row.album.albumName.toStdString())
                                                  : Value();
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
        {{"firstCreated", Type::Time},
         [](const Row &row) {
             return row.first ? timeValue(CoreDataTime{row.first->createdTime}) : Value();
         }},
        {{"lastCreated", Type::Time},
         [](const Row &row) {
             return row.last ? timeValue(CoreDataTime{row.last->createdTime}) : Value();
         }},
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
         [](const Row &row) { return row.first ? localDayValue(*row.first) : Value(); },
         isFact},
        {{"lastDay", Type::Text, translate("LAST")},
         [](const Row &row) { return row.last ? localDayValue(*row.last) : Value(); },
         isFact},
    };
}

} // namespace

AlbumRow::AlbumRow(const CAlbumGroup &group) : album(group)
{
    for (const CPhotoData *photo : group.photos) {
        if (__builtin_add_overflow(bytes, photo->fileSize, &bytes)) // a database can claim anything
            bytes = std::numeric_limits<std::int64_t>::max();
        if (!isOfTheCalendar(CoreDataTime{photo->createdTime}))
            continue;
        if (first == nullptr || photo->createdTime < first->createdTime)
            first = photo;
        if (last == nullptr || photo->createdTime > last->createdTime)
            last = photo;
    }
}

FieldTable<AlbumRow> albumFields()
{
    FieldTable<AlbumRow> table;
    for (const auto &part : {facts(), viewsForPeople()})
        table.fields.insert(table.fields.end(), part.begin(), part.end());
    table.inTables = {"index", "shownKind", "ownName", "count",
                      "bytes", "firstDay",  "lastDay", "uuid"};
    return table;
}

} // namespace iosphoto::tool
