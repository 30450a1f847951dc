#include "commands/command.h"
#include "commands/difference_csv.h"
#include "commands/difference_document.h"
#include "commands/difference_table.h"
#include "commands/help.h"
#include "commands/library_options.h"
#include "commands/option_values.h"
#include "terminal/messages.h"
#include "text/translate.h"

#include <algorithm>

namespace iosphoto::tool {

namespace {

struct DiffRequest
{
    std::string before;
    std::string after;
    Device device; ///< of both
    bool asJson = false;
    bool asJsonLines = false;
    bool asCsv = false;
};

void printAsJson(const Library &before, const Library &after, const LibraryDifference &difference,
                 std::ostream &out)
{
    Json document = differenceHead(before, after, difference);
    Json &photos = document["photos"] = Json::array();
    for (const PhotoDifference &photo : difference.photos.differences)
        photos.push_back(asJson(photo));
    print(document, out);
}

void printAsJsonLines(const Library &before, const Library &after,
                      const LibraryDifference &difference, std::ostream &out)
{
    for (const PhotoDifference &photo : difference.photos.differences) {
        Json line = {{"a", before.name()}, {"b", after.name()}};
        line.update(asJson(photo));
        out << oneLine(line) << '\n';
    }
}

void printDifference(const DiffRequest &request, const Library &before, const Library &after,
                     const LibraryDifference &difference, std::ostream &out)
{
    if (request.asJson)
        printAsJson(before, after, difference, out);
    else if (request.asJsonLines)
        printAsJsonLines(before, after, difference, out);
    else if (request.asCsv)
        printDifferenceAsCsv(difference.photos.differences, out);
    else
        printDifferenceTable(difference, out);
}

/// Says when the libraries do not look like those of one phone.
void checkThatTheyAreRelated(const Library &before, const Library &after,
                             const LibraryDifference &difference)
{
    const int onlyThere = difference.count(Change::Gone);
    const int onlyHere = difference.count(Change::New);
    if (difference.photos.inBoth == 0 && onlyThere > 0 && onlyHere > 0)
        printWarning(translate("'{0}' and '{1}' have no photo in common; are they of one phone?",
                               before.name(), after.name()));
}

ExitStatus statusOf(const Library &before, const Library &after,
                    const LibraryDifference &difference)
{
    if (before.status() != Good || after.status() != Good) {
        printWarning(translate("what is missing may look like a difference, or hide one"));
        return CannotAccess;
    }
    return difference.isNone() ? Good : Different;
}

/// Both libraries are read as of one moment, so that time alone makes no photo leave the trash.
Moment earlierOf(const Moment &one, const Moment &other)
{
    return {std::min(one.unixTime, other.unixTime), translate("the earlier of both")};
}

ExitStatus showDifference(const DiffRequest &request, std::ostream &out)
{
    const Source first(request.before);
    const Source second(request.after);
    const Moment now = earlierOf(ownTimeOf(first), ownTimeOf(second));
    const Library before({request.before, request.device, now}, first);
    const Library after({request.after, request.device, now}, second);
    const AssetList assetsBefore(before.albums());
    const AssetList assetsAfter(after.albums());
    const LibraryDifference difference = {compareAlbums(before.albums(), after.albums()),
                                          comparePhotos(assetsBefore, assetsAfter)};
    before.sayHowItWasRead("A: ");
    after.sayHowItWasRead("B: ");
    checkThatTheyAreRelated(before, after, difference);
    printDifference(request, before, after, difference, out);
    return statusOf(before, after, difference);
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
    CLI::Option *const json =
        command->add_flag("--json", request->asJson, translate("print a JSON document"));
    CLI::Option *const jsonLines =
        command->add_flag("--jsonl", request->asJsonLines,
                          translate("print a JSON object a line, for the photos only"));
    CLI::Option *const csv =
        command->add_flag("--csv", request->asCsv, translate("print CSV, for the photos only"));
    json->excludes(jsonLines, csv);
    jsonLines->excludes(csv);
    command->footer(helpFooter(
        {translate("Both libraries are read as of the time of the earlier one."),
         examples({"iosphoto diff May/Photos.sqlite June/Photos.sqlite",
                   "iosphoto diff May/Photos.sqlite June/Photos.sqlite --json"}),
         translate("Exit: 0 same, 1 different, 2 wrong usage, 3 to 6 unusable files; see "
                   "the README")}));
    return {command, [request](std::ostream &out) { return showDifference(*request, out); }};
}

} // namespace iosphoto::tool
