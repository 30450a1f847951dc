#include "rows/library_head.h"

#include "catalogue/album_kinds.h"
#include "time/time_text.h"

namespace iosphoto::tool {

Json libraryHead(const Library &library)
{
    const ProbedSchema &schema = library.schema();
    const std::optional<std::int64_t> &model = schema.metadata.modelVersion;
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
            {"leftOut", library.leftOutOfTrash()},
            {"isComplete", library.isComplete()},
            {"unknownFields", schema.unknownFields}};
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
