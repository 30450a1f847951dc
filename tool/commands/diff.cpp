#include "catalogue/catalogue_build.h"
#include "commands/command.h"
#include "commands/difference_table.h"
#include "commands/help.h"
#include "commands/library_messages.h"
#include "commands/library_options.h"
#include "commands/option_values.h"
#include "commands/row_format_options.h"
#include "files/standard_input.h"
#include "process/failure.h"
#include "rows/difference_fields.h"
#include "text/lists.h"
#include "text/translate.h"
#include "time/time_text.h"

#include <algorithm>

namespace iosphoto::tool {

namespace {

struct DiffRequest
{
    std::string before;
    std::string after;
    Device device;              ///< of both
    std::optional<Moment> asOf; ///< by default the trash leaves nothing out
    Format format = Format::Table;
};

void printDifference(Format format, const Library &before, const Library &after,
                     const LibraryDifference &difference, const Screen &screen, std::ostream &out)
{
    if (format == Format::Table) {
        printDifferenceTable(difference, screen, out);
        return;
    }
    const auto writer = makeRowWriter(format, out, screen);
    const DifferenceRows rows(before, after);
    const auto fields =
        withUnknown(factsOf(differenceFields()), before.schema().unknownFields, "before.");
    RowStream<DifferenceRow> stream(*writer, differenceHead(before, after, difference),
                                    withUnknown(fields, after.schema().unknownFields, "after."));
    stream.writeAll(difference.photos.differences,
                    [&](const PhotoDifference &photo) { return rows.of(photo); });
}

/// Says when the libraries do not look like those of one phone.
void checkThatTheyAreRelated(const Library &before, const Library &after,
                             const LibraryDifference &difference, const Terminal &terminal)
{
    const int onlyThere = difference.count(Change::Gone);
    const int onlyHere = difference.count(Change::New);
    if (difference.photos.inBoth == 0 && onlyThere > 0 && onlyHere > 0)
        terminal.printWarning(
            translate("'{0}' and '{1}' have no photo in common; are they of one phone?",
                      before.name(), after.name()));
}

ExitStatus statusOf(const Library &before, const Library &after,
                    const LibraryDifference &difference, const Terminal &terminal)
{
    if (!before.isComplete() || !after.isComplete()) {
        terminal.printWarning(translate("what is missing may look like a difference, or hide one"));
        return CannotAccess; // as Incomplete is the status of libraries that differ
    }
    return difference.isNone() ? Good : Different;
}

/// What both sides that have it would leave out of the trash is no difference. Returns how many
/// these are.
std::size_t leaveOutOfTheTrash(const Library &before, const Library &after, PhotoComparison &photos)
{
    const auto isEmptied = [](const Library &library, const std::optional<Asset> &asset) {
        return !asset || library.trash().isEmptiedOf(asset->facts());
    };
    const std::size_t all = photos.differences.size();
    photos.differences.leaveOut([&](const PhotoDifference &photo) {
        return isEmptied(before, photo.before) && isEmptied(after, photo.after);
    });
    return all - photos.differences.size();
}

Snapshot snapshotOf(const Library &library, const AssetList &assets)
{
    return {assets, library.dates(), library.trash(), library.schema().unknownFields};
}

bool areAlbumsKnown(const Library &before, const Library &after)
{
    return !before.schema().isUnknown("albums") && !after.schema().isUnknown("albums");
}

void sayWhatIsNotCompared(const Library &before, const Library &after, const Terminal &terminal)
{
    std::vector<std::string> unknown = before.schema().unknownFields;
    for (const std::string &field : after.schema().unknownFields)
        if (!before.schema().isUnknown(field))
            unknown.push_back(field);
    if (!unknown.empty())
        terminal.printWarning(translate("not compared, as a database lacks columns for them: {0}",
                                        listForPeople(unknown)));
    const auto &account = before.account();
    if (account && after.account() &&
        (account->photos.leftOut != after.account()->photos.leftOut ||
         account->albums.leftOut != after.account()->albums.leftOut))
        terminal.printWarning(translate(
            "what the catalogues leave out is not compared, and A has other numbers of it "
            "than B, as iosphoto info shows"));
}

constexpr UnixTime noTime = {0};

/// Says when the first library is the later one; the times of files change with each copy.
void checkTheirOrder(const Source &first, const Source &second, const Library &before,
                     const Library &after, const Terminal &terminal)
{
    const UnixTime dateBefore = first.backupDate().value_or(noTime);
    const UnixTime dateAfter = second.backupDate().value_or(noTime);
    const bool areDated = !(dateBefore == noTime) && !(dateAfter == noTime);
    if (areDated && dateAfter < dateBefore)
        terminal.printWarning(translate(
            "'{0}' is a backup of {1}, '{2}' one of {3}; the earlier library comes first, else new "
            "photos look gone",
            before.name(), localTimeText(dateBefore), after.name(), localTimeText(dateAfter)));
    else if ((!areDated || dateBefore == dateAfter) && before.age().isLaterThan(after.age()))
        terminal.printWarning(
            translate("by its rows '{0}' is later than '{1}'; the earlier library "
                      "comes first, else new photos look gone",
                      before.name(), after.name()));
}

LibraryRequest compared(const std::string &source, const Device &device, const Moment &asOf)
{
    LibraryRequest request = {source, device, asOf};
    request.isCompared = true;
    return request;
}

ExitStatus showDifference(const DiffRequest &request, Session &session, std::ostream &out)
{
    if (isStandardInput(request.before) && isStandardInput(request.after))
        throw Failure(WrongUsage, translate("A and B cannot both be standard input; name a file "
                                            "for one of them"));
    using Opening = Source::Opening;
    Source first(session, request.before, Opening::Later); // both may need to make keys
    Source second(session, request.after, Opening::Later);
    first.open();
    second.open();
    const Moment asOf = request.asOf.value_or(Moment{beforeAllTrash, ""});
    const Library before(session, compared(request.before, request.device, asOf), first);
    const Library after(session, compared(request.after, request.device, asOf), second);
    const AssetList assetsBefore(before.albums());
    const AssetList assetsAfter(after.albums());
    LibraryDifference difference = {
        areAlbumsKnown(before, after) ? compareAlbums(before.albums(), after.albums())
                                      : std::vector<AlbumDifference>(),
        comparePhotos(snapshotOf(before, assetsBefore), snapshotOf(after, assetsAfter))};
    const std::size_t leftOut = leaveOutOfTheTrash(before, after, difference.photos);
    printHowItWasRead(session.terminal, before, "A: ");
    printHowItWasRead(session.terminal, after, "B: ");
    if (leftOut > 0)
        session.terminal.printWarning(translate(
            "differences left out, as the photos had been in the trash for 30 days: {0}", leftOut));
    sayWhatIsNotCompared(before, after, session.terminal);
    checkThatTheyAreRelated(before, after, difference, session.terminal);
    if (difference.photos.inBoth > 0)
        checkTheirOrder(first, second, before, after, session.terminal);
    printDifference(request.format, before, after, difference, session.terminal.screenOf(out), out);
    out.flush(); // before what is said of it
    return statusOf(before, after, difference, session.terminal);
}

} // namespace

Command addDiff(CLI::App &app)
{
    const auto request = std::make_shared<DiffRequest>();
    CLI::App *command =
        app.add_subcommand("diff", translate("Compare two snapshots of the library of one phone"));
    command->add_option("A", request->before, translate("the earlier library"))
        ->required()
        ->check(notEmpty());
    command->add_option("B", request->after, translate("the later library"))
        ->required()
        ->check(notEmpty());
    addDeviceOptions(*command, request->device);
    addAsOfOption(
        *command, request->asOf,
        translate("the moment that counts as now, of a day its beginning, such as "
                  "2024-05-01 or now (see TIMES below): what had been in the trash for 30 "
                  "days then is left out, unless one of the libraries has it elsewhere "
                  "(default: nothing is left out)"));
    CLI::Option *const json = addFormatFlag(*command, request->format, Format::JsonDocument,
                                            translate("print a JSON document"));
    CLI::Option *const jsonLines =
        addFormatFlag(*command, request->format, Format::JsonLines,
                      translate("print a JSON object a line, for the photos only"));
    CLI::Option *const csv = addFormatFlag(*command, request->format, Format::Csv,
                                           translate("print CSV, for the photos only"));
    json->excludes(jsonLines, csv);
    jsonLines->excludes(csv);
    command->footer(helpFooter(
        {translate("What is in the trash is compared however long it has been there."),
         translate("Compared are the names and kinds of albums, which photos they show, but for "
                   "albums without a title, and all that photos shows of a photo, but keys of "
                   "rows, places in the thumbnail cache, and what "
                   "follows from other fields or photos. What is in no album is counted only."),
         kindsOfTimes(),
         examples({"iosphoto diff May/Photos.sqlite June/Photos.sqlite",
                   "iosphoto diff May/Photos.sqlite June/Photos.sqlite --json"}),
         translate("Exit: 0 same, 1 different, 2 wrong usage, 3 to 6 unusable files; see "
                   "the README")}));
    return {command,
            [request](Session &session, std::ostream &out) {
                return showDifference(*request, session, out);
            },
            true};
}

} // namespace iosphoto::tool
