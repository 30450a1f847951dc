#include "catalogue/album_kinds.h"
#include "commands/command.h"
#include "commands/help.h"
#include "commands/library_messages.h"
#include "commands/library_options.h"
#include "commands/photo_options.h"
#include "commands/row_format_options.h"
#include "process/failure.h"
#include "rows/library_database.h"
#include "rows/library_head.h"
#include "text/lists.h"
#include "text/numbers.h"
#include "text/printable.h"
#include "text/translate.h"

namespace iosphoto::tool {

namespace {

struct PhotosRequest
{
    LibraryRequest library;
    PhotoChoice choice;
    RowFormat format;
};

void printPhotos(RowStream<PhotoRow> stream, const std::vector<Asset> &photos,
                 const PhotoRows &rows)
{
    for (const Asset &photo : photos)
        stream.write(rows.of(photo));
    stream.end();
}

/// The albums that are asked for, if one is.
std::vector<const CAlbumGroup *> albumsOf(const PhotoFilter &filter, const Library &library,
                                          const Terminal &terminal)
{
    if (!filter.album)
        return {};
    const std::vector<const CAlbumGroup *> albums = matchingAlbums(library, *filter.album);
    if (albums.empty())
        throw Failure(WrongUsage, translate("no album fits '{0}'; 'iosphoto albums {1}' lists them",
                                            *filter.album, library.name()));
    if (albums.size() > 1)
        terminal.printInfo(translate(
            "'{0}' fits {1} albums, all are shown: {2}", *filter.album, albums.size(),
            listForPeople(albums, [](const CAlbumGroup *album) { return shownName(*album); })));
    return albums;
}

/// @param count  of the photos that could have been chosen
void sayThatThereAreNone(Shown shown, std::size_t size, const Terminal &terminal)
{
    const auto count = static_cast<std::int64_t>(size);
    if (count == 0 && shown == Shown::LeftOut)
        terminal.printInfo(translate("no photo is left out"));
    else if (count == 0)
        terminal.printInfo(
            counted(count, "the library holds {0} photo", "the library holds {0} photos"));
    else
        terminal.printWarning(
            counted(count, "the only photo does not fit; leave out an option to see it",
                    "none of the {0} photos fits; leave out an option to see more"));
}

FieldTable<PhotoRow> fieldsFor(const PhotoChoice &choice)
{
    if (choice.shown == Shown::LeftOut)
        return photoFieldsOfLeftOut();
    if (choice.shown == Shown::Both)
        return photoFieldsWithLeftOut();
    return choice.filter.isDeleted ? photoFieldsOfTheTrash() : photoFields();
}

ExitStatus showPhotos(PhotosRequest request, Session &session, std::ostream &out)
{
    const auto fields = fieldsToShow(fieldsFor(request.choice), request.format);
    const Shown shown = request.choice.shown;
    request.library.keepsLeftOut = shown != Shown::Listed;
    const Library library(session, request.library);
    const std::vector<const CAlbumGroup *> albums =
        albumsOf(request.choice.filter, library, session.terminal);
    const AssetList assets(library.albums());
    const AssetList leftOut(library.leftOutPhotos().records());
    const std::vector<Asset> photos =
        choosePhotos(request.choice, albums, library, assets, leftOut);
    const BurstFrames bursts(assets);
    const PhotoRows rows(library, bursts);
    printHowItWasRead(session.terminal, library);
    if (photos.empty())
        sayThatThereAreNone(shown, (shown == Shown::LeftOut ? 0 : assets.size()) + leftOut.size(),
                            session.terminal);
    if (request.format.format == Format::Sqlite) {
        writePhotoDatabase(session.files, request.format.sqliteFile, library, photos, rows);
        out << translate("wrote {0}", printable(request.format.sqliteFile)) << '\n';
    } else {
        const auto writer =
            makeRowWriter(request.format.format, out, session.terminal.screenOf(out));
        printPhotos({*writer, rowsHead("photos", library),
                     withUnknown(fields, library.schema().unknownFields)},
                    photos, rows);
    }
    return statusOf(library);
}

} // namespace

Command addPhotos(CLI::App &app)
{
    const auto request = std::make_shared<PhotosRequest>();
    CLI::App *command =
        app.add_subcommand("photos", translate("List the photos of a library, each once"));
    addLibraryOptions(*command, request->library);
    addPhotoOptions(*command, request->choice);
    addRowFormatOptions(*command, request->format);
    command->footer(helpFooter(
        {listOfFields(keysOf(photoFields())),
         examples({"iosphoto photos Photos.sqlite --album favorites",
                   "iosphoto photos Photos.sqlite --album \"Summer 2019\" --json",
                   "iosphoto photos Photos.sqlite --since 2024-05-01 --kind live,portrait",
                   "iosphoto photos Photos.sqlite --deleted --within 7 --sort deleted",
                   "iosphoto photos Photos.sqlite --sort size --limit 20 --fields path,fileSize",
                   "iosphoto photos Photos.sqlite --left-out",
                   "iosphoto photos Photos.sqlite --frames --sqlite photos.db"}),
         exitCodesOfALibrary()}));
    return {command, [request](Session &session, std::ostream &out) {
                return showPhotos(*request, session, out);
            }};
}

} // namespace iosphoto::tool
