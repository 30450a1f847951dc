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
#include "text/translate.h"

#include <algorithm>

namespace iosphoto::tool {

namespace {

struct DiffRequest
{
    std::string before;
    std::string after;
    Device device; ///< of both
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
    for (const PhotoDifference &photo : difference.photos.differences)
        stream.write(rows.of(photo));
    stream.end();
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

/// Both libraries are read as of one moment, so that time alone makes no photo leave the trash.
Moment earlierOf(const Moment &one, const Moment &other)
{
    const Moment &earlier = std::min(
        one, other, [](const Moment &left, const Moment &right) { return left.time < right.time; });
    return {earlier.time, translate("the earlier of both"), earlier.assumedZone};
}

ExitStatus showDifference(const DiffRequest &request, Session &session, std::ostream &out)
{
    if (isStandardInput(request.before) && isStandardInput(request.after))
        throw Failure(WrongUsage, translate("A and B cannot both be standard input; name a file "
                                            "for one of them"));
    const Source first(session, request.before);
    const Source second(session, request.after);
    const Moment now = earlierOf(ownTimeOf(first), ownTimeOf(second));
    const Library before(session, {request.before, request.device, now}, first);
    const Library after(session, {request.after, request.device, now}, second);
    const AssetList assetsBefore(before.albums());
    const AssetList assetsAfter(after.albums());
    const LibraryDifference difference = {compareAlbums(before.albums(), after.albums()),
                                          comparePhotos(assetsBefore, assetsAfter)};
    printHowItWasRead(session.terminal, before, "A: ");
    printHowItWasRead(session.terminal, after, "B: ");
    checkThatTheyAreRelated(before, after, difference, session.terminal);
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
        {translate("Both libraries are read as of the time of the earlier one."),
         examples({"iosphoto diff May/Photos.sqlite June/Photos.sqlite",
                   "iosphoto diff May/Photos.sqlite June/Photos.sqlite --json"}),
         translate("Exit: 0 same, 1 different, 2 wrong usage, 3 to 6 unusable files; see "
                   "the README")}));
    return {command, [request](Session &session, std::ostream &out) {
                return showDifference(*request, session, out);
            }};
}

} // namespace iosphoto::tool
