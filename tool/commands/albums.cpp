#include "commands/command.h"
#include "commands/help.h"
#include "commands/library_options.h"
#include "commands/row_format_options.h"
#include "rows/album_fields.h"
#include "rows/library_database.h"
#include "text/printable.h"
#include "text/translate.h"

namespace iosphoto::tool {

namespace {

struct AlbumsRequest
{
    LibraryRequest library;
    RowFormat format;
};

void printAlbums(RowStream<AlbumRow> stream, const Library &library)
{
    for (const CAlbumGroup &album : library.albums())
        stream.write(AlbumRow(album));
    stream.end();
}

ExitStatus showAlbums(const AlbumsRequest &request, std::ostream &out)
{
    const auto fields = fieldsToShow(albumFields(), request.format);
    const Library library(request.library);
    library.sayHowItWasRead();
    if (request.format.sqlite) {
        writeAlbumDatabase(*request.format.sqlite, library);
        out << translate("wrote {0}", printable(*request.format.sqlite)) << '\n';
    } else {
        const auto writer = makeRowWriter(request.format, out);
        printAlbums({*writer, {"albums", libraryHead(library)}, fields}, library);
    }
    return library.status();
}

} // namespace

Command addAlbums(CLI::App &app)
{
    const auto request = std::make_shared<AlbumsRequest>();
    CLI::App *command = app.add_subcommand("albums", translate("List the albums of a library"));
    addLibraryOptions(*command, request->library);
    addRowFormatOptions(*command, request->format);
    command->footer(helpFooter(
        {listOfFields(keysOf(albumFields())),
         examples({"iosphoto albums Photos.sqlite", "iosphoto albums Photos.sqlite --csv",
                   "iosphoto albums Photos.sqlite --fields name,count,bytes"}),
         exitCodesOfALibrary()}));
    return {command, [request](std::ostream &out) { return showAlbums(*request, out); }};
}

} // namespace iosphoto::tool
