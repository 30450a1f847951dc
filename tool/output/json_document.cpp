#include "output/json_document.h"

#include "catalogue/album_kinds.h"

namespace iosphoto::tool {

Json libraryHead(const Library &library)
{
    const ProbedSchema &schema = library.schema();
    const std::optional<std::int64_t> &model = schema.metadata.modelVersion;
    return {{"source", library.name()},
            {"sourceKind", machineName(library.kind())},
            {"isArchive", library.isArchive()},
            {"database", library.database()},
            {"iosVersion", library.device().iosVersion},
            {"iosVersionFrom", machineName(schema.iosOrigin)},
            {"build", textOrNull(schema.iosBuild)},
            {"productType", library.device().productType},
            {"productTypeFrom", machineName(schema.productOrigin)},
            {"schema", schema.name},
            {"modelVersion", model ? Json(*model) : Json()},
            {"asOf", textOrNull(utcTimeText(library.asOf().unixTime))},
            {"leftOut", library.leftOut()},
            {"isComplete", library.status() == Good}};
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

std::string oneLine(const Json &document)
{
    return document.dump(-1, ' ', false, Json::error_handler_t::replace);
}

Json textOrNull(const QString &text)
{
    return textOrNull(text.toStdString());
}

Json textOrNull(const std::string &text)
{
    return text.empty() ? Json() : Json(text);
}

Json utcTime(double coreDataSeconds)
{
    return textOrNull(utcTimeOf(coreDataSeconds));
}

void print(const Json &document, std::ostream &out)
{
    constexpr int indent = 2;
    out << document.dump(indent, ' ', false, Json::error_handler_t::replace) << '\n';
}

} // namespace iosphoto::tool
