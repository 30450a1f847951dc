#include "output/json_document.h"

#include "catalogue/album_kinds.h"

namespace iosphoto::tool {

Json libraryHead(const Library &library)
{
    return {{"source", library.name()},
            {"iosVersion", library.device().iosVersion},
            {"productType", library.device().productType},
            {"asOf", textOrNull(utcTimeText(library.asOf().unixTime))},
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
    const auto unixTime = unixTimeOf(coreDataSeconds);
    return unixTime ? textOrNull(utcTimeText(*unixTime)) : Json();
}

std::string oneLine(const Json &document)
{
    return document.dump(-1, ' ', false, Json::error_handler_t::replace);
}

void print(const Json &document, std::ostream &out)
{
    constexpr int indent = 2;
    out << document.dump(indent, ' ', false, Json::error_handler_t::replace) << '\n';
}

} // namespace iosphoto::tool
