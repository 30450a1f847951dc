#include "catalogue/album_kinds.h"
#include "catalogue/asset_matching.h"
#include "commands/command.h"
#include "commands/help.h"
#include "commands/known_fields.h"
#include "commands/library_messages.h"
#include "commands/library_options.h"
#include "commands/option_values.h"
#include "commands/photo_options.h"
#include "commands/row_format_options.h"
#include "process/failure.h"
#include "rows/library_database.h"
#include "rows/library_head.h"
#include "rows/photo_condition.h"
#include "text/did_you_mean.h"
#include "text/lists.h"
#include "text/numbers.h"
#include "text/printable.h"
#include "text/translate.h"
#include "time/time_text.h"

#include <algorithm>
#include <functional>

namespace iosphoto::tool {

namespace {

struct PhotosRequest
{
    LibraryRequest library;
    PhotoChoice choice;
    std::optional<std::string> where;
    RowFormat format;
};

void printPhotos(RowStream<PhotoRow> stream, const ChosenAssets &photos, const PhotoRows &rows)
{
    stream.writeAll(photos, [&](const Asset &photo) { return rows.of(photo); });
}

std::vector<std::string> namesOf(const Library &library)
{
    std::vector<std::string> names;
    for (const CAlbumGroup &album : library.albums()) {
        names.push_back(shownName(album));
        names.push_back(kindName(album));
    }
    return names;
}

bool isWithoutPhotos(const std::vector<const CAlbumGroup *> &albums)
{
    return std::all_of(albums.begin(), albums.end(),
                       [](const CAlbumGroup *album) { return album->photos.empty(); });
}

/// The albums that fit one name. Throws Failure where there are none.
std::vector<const CAlbumGroup *> albumsNamed(const std::string &name, const Library &library,
                                             const Terminal &terminal)
{
    std::vector<const CAlbumGroup *> albums = matchingAlbums(library, name);
    if (isWithoutPhotos(albums))
        requireKnown("--album", fieldBehindAlbum(name), library);
    if (albums.empty())
        throw Failure(WrongUsage, translate("no album fits '{0}'; 'iosphoto albums {1}' lists them",
                                            name, library.name()) +
                                      didYouMean(name, namesOf(library)));
    if (albums.size() > 1)
        terminal.printInfo(translate(
            "'{0}' fits {1} albums, all are shown: {2}", name, albums.size(),
            listForPeople(albums, [](const CAlbumGroup *album) { return shownName(*album); })));
    return albums;
}

/// The albums that are asked for, if some are.
std::vector<const CAlbumGroup *> albumsOf(const PhotoFilter &filter, const Library &library,
                                          const Terminal &terminal)
{
    std::vector<const CAlbumGroup *> all;
    for (const std::string &name : filter.albums) {
        const std::vector<const CAlbumGroup *> albums = albumsNamed(name, library, terminal);
        all.insert(all.end(), albums.begin(), albums.end());
    }
    return all;
}

/// Why a photo is left out; nothing where none has the uuid.
std::optional<PhotoReason> reasonFor(const std::string &uuid, const AssetList &leftOut,
                                     const Library &library)
{
    for (const Asset asset : leftOut)
        if (comparable(asset.uuid()) == comparable(uuid))
            return library.leftOutPhotos().reasonFor(asset);
    return std::nullopt;
}

/// That every uuid that is asked for is one of a photo that the list may have.
void requireUuids(const PhotoChoice &choice, const AssetList &assets, const AssetList &leftOut,
                  const Library &library)
{
    const std::string notListed = missingUuid(choice.filter, {&assets});
    const std::string missing = missingUuid(choice.filter, {&assets, &leftOut});
    if (!missing.empty())
        throw Failure(WrongUsage, translate("no photo of the database has the uuid '{0}'; "
                                            "'iosphoto photos {1} --frames --with-left-out "
                                            "--fields uuid,path' lists them",
                                            missing, library.name()));
    if (choice.shown != Shown::Listed || notListed.empty())
        return;
    if (const auto reason = reasonFor(notListed, leftOut, library))
        throw Failure(WrongUsage,
                      translate("the photo with the uuid '{0}' is in the database, but left out: "
                                "{1}; --with-left-out shows it",
                                notListed, translateTerm(words(*reason))));
}

/// Whether a photo fulfils --where; empty where that is not given.
KindTest conditionOf(const PhotosRequest &request, const Library &library, const PhotoRows &rows,
                     const Terminal &terminal)
{
    if (!request.where)
        return {};
    const auto condition = std::make_shared<PhotoCondition>(
        *request.where, withUnknown(photoColumns(), library.schema().unknownFields));
    for (const Field<PhotoRow> &field : condition->fields())
        sayThatItIsNull("--where", field.column.key, library, terminal);
    return [condition, &rows](const Asset &photo) { return condition->isMetBy(rows.of(photo)); };
}

/// How many photos could be chosen.
std::size_t countOf(Shown shown, const AssetList &assets, const AssetList &leftOut)
{
    return (shown == Shown::LeftOut ? 0 : assets.size()) +
           (shown == Shown::Listed ? 0 : leftOut.size());
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

void requireOrder(const PhotoFilter &filter)
{
    if (filter.since && filter.until && *filter.until < *filter.since)
        throw Failure(WrongUsage,
                      translate("--since ({0}) is later than --until ({1}), so no photo "
                                "fits both; exchange them",
                                localTimeText(*filter.since), localTimeText(*filter.until)));
}

/// Says how many photos a time leaves out for want of one of their own.
/// @param choose  from the photos of the library
void sayWhatHasNoTime(PhotoChoice choice,
                      const std::function<ChosenAssets(const PhotoChoice &)> &choose,
                      const Terminal &terminal)
{
    PhotoFilter &filter = choice.filter;
    if (!filter.since && !filter.until)
        return;
    filter.since.reset();
    filter.until.reset();
    filter.isUndated = true;
    choice.sorting = {};
    const auto count = static_cast<std::int64_t>(choose(choice).size());
    if (count > 0)
        terminal.printWarning(counted(
            count,
            "{0} photo is not shown, as it has no time of creation, by which --since and --until "
            "choose",
            "{0} photos are not shown, as they have no time of creation, by which --since and "
            "--until choose"));
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
    if (request.where)
        PhotoCondition(*request.where, photoColumns()); // a mistake is said before the long reading
    requireOrder(request.choice.filter);
    const Shown shown = request.choice.shown;
    // A photo that is asked for by its uuid may be one of them.
    request.library.keepsLeftOut = shown != Shown::Listed || !request.choice.filter.uuids.empty();
    const Library library(session, request.library);
    requireKnownFields(request.choice, library);
    const std::vector<const CAlbumGroup *> albums =
        albumsOf(request.choice.filter, library, session.terminal);
    const AssetList assets(library.albums());
    const AssetList leftOut(library.leftOutPhotos().records());
    requireUuids(request.choice, assets, leftOut, library);
    const BurstFrames bursts(assets);
    const PhotoRows rows(library, bursts);
    request.choice.filter.isWanted = conditionOf(request, library, rows, session.terminal);
    const auto choose = [&](const PhotoChoice &choice) {
        return choosePhotos(choice, albums, library, assets, leftOut);
    };
    const ChosenAssets photos = choose(request.choice);
    printHowItWasRead(session.terminal, library, "", shown);
    sayWhatHasNoTime(request.choice, choose, session.terminal);
    if (photos.empty())
        sayThatThereAreNone(shown, countOf(shown, assets, leftOut), session.terminal);
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
    addWhere(*command, request->where);
    addRowFormatOptions(*command, request->format);
    command->footer(helpFooter(
        {listOfFields(keysOf(photoFields())), kindsOfTimes(),
         examples({"iosphoto photos Photos.sqlite --album Favorites --album Selfies",
                   "iosphoto photos Photos.sqlite --album \"Summer 2019\" --json",
                   "iosphoto photos Photos.sqlite --since 2024-05 --kind live,portrait",
                   "iosphoto photos Photos.sqlite --since 7d --name 'IMG_*.HEIC'",
                   "iosphoto photos Photos.sqlite --where \"width > 2 * height and isEdited\"",
                   "iosphoto photos Photos.sqlite --deleted --within 7 --sort deleted",
                   "iosphoto photos Photos.sqlite --sort size -n 20 --fields path,fileSize",
                   "iosphoto photos Photos.sqlite --left-out",
                   "iosphoto photos Photos.sqlite --frames --sqlite photos.db"}),
         exitCodesOfALibrary()}));
    return {command,
            [request](Session &session, std::ostream &out) {
                return showPhotos(*request, session, out);
            },
            true};
}

} // namespace iosphoto::tool
