#include "catalogue/album_kinds.h"
#include "catalogue/library.h"
#include "commands/command.h"
#include "commands/library_options.h"
#include "language/said.h"
#include "output/json_document.h"
#include "output/text_table.h"

namespace iosphoto::tool {

namespace {

struct AlbumsRequest
{
    LibraryRequest library;
    bool asJson = false;
};

void printAlbums(const Library &library, std::ostream &out)
{
    using Align = TextTable::Align;
    TextTable table({{"#", Align::Right}, {"KIND"}, {"NAME"}, {"COUNT", Align::Right}, {"UUID"}});
    for (const CAlbumGroup &album : library.albums())
        table.add({std::to_string(album.albumIndex), shownKind(album),
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

ExitStatus showAlbums(const AlbumsRequest &request, std::ostream &out)
{
    const Library library(request.library);
    library.sayHowItWasRead();
    (request.asJson ? printAlbumsAsJson : printAlbums)(library, out);
    return library.status();
}

} // namespace

Command addAlbums(CLI::App &app)
{
    const auto request = std::make_shared<AlbumsRequest>();
    CLI::App *command = app.add_subcommand("albums", said("List the albums of a library"));
    addLibraryOptions(*command, request->library);
    command->add_flag("--json", request->asJson, said("print a JSON document"));
    command->footer(said("Example:") + "\n  iosphoto albums Photos.sqlite");
    return {command, [request](std::ostream &out) { return showAlbums(*request, out); }};
}

} // namespace iosphoto::tool
