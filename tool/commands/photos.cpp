#include "commands/command.h"
#include "commands/help.h"
#include "commands/library_options.h"
#include "commands/photo_options.h"
#include "commands/row_format_options.h"
#include "rows/library_database.h"
#include "terminal/messages.h"
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

void sayThatThereAreNone(const AssetList &assets)
{
    const auto count = static_cast<std::int64_t>(assets.size());
    if (count == 0)
        printInfo(counted(count, "the library holds {0} photo", "the library holds {0} photos"));
    else
        printWarning(counted(count, "the only photo does not fit; leave out an option to see it",
                             "none of the {0} photos fits; leave out an option to see more"));
}

ExitStatus showPhotos(const PhotosRequest &request, std::ostream &out)
{
    const bool isTrash = request.choice.filter.isDeleted;
    const auto fields =
        fieldsToShow(isTrash ? photoFieldsOfTheTrash() : photoFields(), request.format);
    const Library library(request.library);
    const AssetList assets(library.albums());
    const std::vector<Asset> photos = choosePhotos(request.choice, library, assets);
    const BurstFrames bursts(assets);
    const PhotoRows rows(library, bursts);
    library.sayHowItWasRead();
    if (photos.empty())
        sayThatThereAreNone(assets);
    if (request.format.sqlite) {
        writePhotoDatabase(*request.format.sqlite, library, photos, rows);
        out << translate("wrote {0}", printable(*request.format.sqlite)) << '\n';
    } else {
        const auto writer = makeRowWriter(request.format, out);
        printPhotos({*writer, {"photos", libraryHead(library)}, fields}, photos, rows);
    }
    return library.status();
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
                   "iosphoto photos Photos.sqlite --frames --sqlite photos.db"}),
         exitCodesOfALibrary()}));
    return {command, [request](std::ostream &out) { return showPhotos(*request, out); }};
}

} // namespace iosphoto::tool
