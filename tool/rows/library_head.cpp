#include "rows/library_head.h"

#include "catalogue/album_kinds.h"
#include "time/time_text.h"

namespace iosphoto::tool {

namespace {

template <typename Reason, std::size_t count>
Json countsByReason(const ProbedSchema &schema, const RowAccount<Reason, count> &account)
{
    Json counts;
    for (std::size_t reason = 0; reason < count; ++reason) {
        const char *const name = machineName(Reason(reason));
        const std::int64_t rows = account.leftOut[reason];
        counts[name] = rows == 0 && schema.isUnknownReason(name) ? Json() : Json(rows);
    }
    return counts;
}

Json columnNames(const std::vector<MissingColumn> &columns)
{
    Json names = Json::array();
    for (const MissingColumn &column : columns)
        names.push_back(column.name());
    return names;
}

Json leftOutOfTrash(const Library &library)
{
    return library.schema().isUnknownReason(machineName(PhotoReason::TrashedTooLong))
               ? Json()
               : Json(library.leftOutOfTrash());
}

} // namespace

Json libraryHead(const Library &library)
{
    const ProbedSchema &schema = library.schema();
    const std::optional<std::int64_t> &model = schema.metadata.modelVersion;
    const std::optional<Account> &account = library.account();
    return {{"source", library.name()},
            {"sourceBytes", bytesOrNull(library.name())},
            {"sourceKind", machineName(library.kind())},
            {"isArchive", library.isArchive()},
            {"database", library.database()},
            {"databaseBytes", bytesOrNull(library.database())},
            {"iosVersion", library.device().iosVersion},
            {"iosVersionFrom", machineName(schema.iosOrigin)},
            {"build", textOrNull(schema.iosBuild)},
            {"productType", library.device().productType},
            {"productTypeFrom", machineName(schema.productOrigin)},
            {"schema", schema.name},
            {"modelVersion", model ? Json(*model) : Json()},
            {"asOf", textOrNull(utcTimeText(library.asOf().time))},
            {"assumedTimeZone", textOrNull(library.asOf().assumedZone)},
            {"leftOut", leftOutOfTrash(library)},
            {"leftOutByReason", account ? leftOutByReason(schema, account->photos) : Json()},
            {"albumsLeftOutByReason", account ? leftOutByReason(schema, account->albums) : Json()},
            {"isComplete", library.isComplete()},
            {"missingColumns", columnNames(schema.missingColumns)},
            {"unknownFields", schema.unknownFields},
            {"unknownReasons", schema.unknownReasons}};
}

Json leftOutByReason(const ProbedSchema &schema, const PhotoAccount &account)
{
    return countsByReason(schema, account);
}

Json leftOutByReason(const ProbedSchema &schema, const AlbumAccount &account)
{
    return countsByReason(schema, account);
}

Json sourceNamed(const std::string &key, const Library &library)
{
    return {{key, library.name()}, {key + "Bytes", bytesOrNull(library.name())}};
}

Json albumReference(const CAlbumGroup &album)
{
    return {{"index", album.albumIndex},
            {"kind", kindName(album)},
            {"kindCode", album.albumKind},
            {"englishKind", englishKind(album)},
            {"name", album.albumName.toStdString()},
            {"uuid", textOrNull(album.albumUuid)}};
}

RowsHead rowsHead(const std::string &rows, const Library &library)
{
    return {rows, libraryHead(library), sourceNamed("source", library)};
}

Json timeOrNull(CoreDataTime time)
{
    return textOrNull(utcTimeText(time));
}

} // namespace iosphoto::tool
