#include "commands/albums.h"

#include "catalogue/album_kinds.h"
#include "output/json_document.h"
#include "output/text_table.h"

namespace iosphoto::tool {

void printAlbums(const Library &library, std::ostream &out)
{
    using Align = TextTable::Align;
    TextTable table({{"#", Align::Right}, {"KIND"}, {"NAME"}, {"COUNT", Align::Right}, {"UUID"}});
    for (const CAlbumGroup &album : library.albums())
        table.add({std::to_string(album.albumIndex), englishKind(album),
                   album.albumName.toStdString(), std::to_string(album.albumCount),
                   album.albumUuid});
    table.print(out);
}

void printAlbumsAsJson(const Library &library, std::ostream &out)
{
    Json document = libraryHead(library);
    Json &albums = document["albums"] = Json::array();
    for (const CAlbumGroup &album : library.albums()) {
        Json entry = albumReference(album);
        entry["count"] = album.albumCount;
        entry["photoCount"] = album.photos.size();
        entry["isSmart"] = album.isSmartAlbum;
        entry["collectsFromAlbums"] = collectsFromAlbums(album);
        albums.push_back(std::move(entry));
    }
    print(document, out);
}

} // namespace iosphoto::tool
