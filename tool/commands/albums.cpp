#include "commands/command.h"
#include "commands/help.h"
#include "commands/library_messages.h"
#include "commands/library_options.h"
#include "commands/option_values.h"
#include "commands/row_format_options.h"
#include "rows/album_fields.h"
#include "rows/library_database.h"
#include "rows/library_head.h"
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
        stream.write(AlbumRow(album, library.dates()));
    stream.end();
}

ExitStatus showAlbums(const AlbumsRequest &request, Session &session, std::ostream &out)
{
    const auto fields = fieldsToShow(albumFields(), request.format);
    const Library library(session, request.library);
    printHowItWasRead(session.terminal, library);
    if (request.format.format == Format::Sqlite) {
        writeAlbumDatabase(session.files, request.format.sqliteFile, library);
        out << translate("wrote {0}", printable(request.format.sqliteFile)) << '\n';
    } else {
        const auto writer =
            makeRowWriter(request.format.format, out, session.terminal.screenOf(out));
        printAlbums({*writer, rowsHead("albums", library),
                     withUnknown(fields, library.schema().unknownFields)},
                    library);
    }
    return statusOf(library);
}

} // namespace

Command addAlbums(CLI::App &app)
{
    const auto request = std::make_shared<AlbumsRequest>();
    CLI::App *command = app.add_subcommand("albums", translate("List the albums of a library"));
    addLibraryOptions(*command, request->library);
    addRowFormatOptions(*command, request->format);
    command->footer(helpFooter(
        {listOfFields(keysOf(albumFields())), kindsOfTimes(),
         examples({"iosphoto albums Photos.sqlite", "iosphoto albums Photos.sqlite --csv",
                   "iosphoto albums Photos.sqlite --fields name,count,bytes"}),
         exitCodesOfALibrary()}));
    return {command,
            [request](Session &session, std::ostream &out) {
                return showAlbums(*request, session, out);
            },
            true};
}

} // namespace iosphoto::tool
