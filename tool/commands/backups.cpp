#include "catalogue/library_list.h"
#include "commands/command.h"
#include "commands/help.h"
#include "commands/option_values.h"
#include "commands/passed_over_words.h"
#include "commands/problem_words.h"
#include "commands/row_format_options.h"
#include "process/failure.h"
#include "rows/library_list_fields.h"
#include "text/lists.h"
#include "text/translate.h"

#include <cstdlib>
#include <filesystem>

namespace iosphoto::tool {

namespace {

struct BackupsRequest
{
    std::string folder; ///< empty for the places where backups usually are
    Format format = Format::Table;
};

/// Where programs of this system keep the backups that they make.
std::vector<std::string> usualPlaces()
{
#ifdef __APPLE__
    if (const char *const home = std::getenv("HOME"); home != nullptr)
        return {std::string(home) + "/Library/Application Support/MobileSync/Backup"};
#endif
    return {};
}

std::vector<std::string> placesToSearch(const BackupsRequest &request)
{
    const std::vector<std::string> places =
        request.folder.empty() ? usualPlaces() : std::vector<std::string>{request.folder};
    if (places.empty())
        throw Failure(WrongUsage, translate("this system has no usual place for the backups of "
                                            "devices; name a folder to search, such as iosphoto "
                                            "backups /media/disk"));
    return places;
}

std::string quoted(const std::string &place)
{
    return translate("'{0}'", place);
}

LibraryList listAll(Session &session, const std::vector<std::string> &places)
{
    LibraryList all;
    const auto append = [](auto &to, const auto &from) {
        to.insert(to.end(), from.begin(), from.end());
    };
    for (const std::string &place : places) {
        const LibraryList list = listLibraries(session, place);
        append(all.libraries, list.libraries);
        append(all.unsearched, list.unsearched);
        append(all.findings, list.findings);
        append(all.passedOver, list.passedOver);
    }
    return all;
}

void printWarnings(const Terminal &terminal, const LibraryList &list)
{
    for (const auto &findings : {list.unsearched, list.findings})
        for (const SourceFinding &finding : findings)
            terminal.printWarning(inWords(finding).what());
    if (const std::string line = inWords(list.passedOver); !line.empty())
        terminal.printInfo(line);
}

ExitStatus showBackups(const BackupsRequest &request, Session &session, std::ostream &out)
{
    const std::vector<std::string> places = placesToSearch(request);
    const LibraryList list = listAll(session, places);
    const FieldTable<ListedLibrary> fields = libraryListFields();
    if (!list.libraries.empty() || request.format != Format::Table) {
        const auto writer = makeRowWriter(request.format, out, session.terminal.screenOf(out));
        RowStream<ListedLibrary> stream(*writer, libraryListHead(places, list.isComplete()),
                                        fieldsToShow(fields, {request.format, {}, {}}));
        for (const ListedLibrary &library : list.libraries)
            stream.write(library);
        stream.end();
        out.flush(); // before what is said of it
    }
    printWarnings(session.terminal, list);
    if (list.libraries.empty())
        throw Failure(WrongKindOfFile,
                      translate("no backup and no other photo library was found; looked in {0}",
                                listForPeople(places, quoted)));
    return list.isComplete() ? Good : Incomplete;
}

} // namespace

Command addBackups(CLI::App &app)
{
    const auto request = std::make_shared<BackupsRequest>();
    CLI::App *command = app.add_subcommand(
        "backups", translate("List the backups in a folder, and other photo libraries there"));
    command
        ->add_option(
            "FOLDER", request->folder,
            translate("folder or archive to search, with all folders in it (default: where "
                      "Finder and iTunes keep backups on a Mac)"))
        ->check(notEmpty());
    CLI::Option *const json = addFormatFlag(*command, request->format, Format::JsonDocument,
                                            translate("print a JSON document"));
    CLI::Option *const jsonLines = addFormatFlag(*command, request->format, Format::JsonLines,
                                                 translate("print JSON Lines: an object a line"));
    CLI::Option *const csv =
        addFormatFlag(*command, request->format, Format::Csv, translate("print CSV"));
    json->excludes(jsonLines, csv);
    jsonLines->excludes(csv);
    command->footer(helpFooter(
        {translate("PHOTOS is the number of rows of photos and videos in the database, those in "
                   "the trash too: unknown of encrypted backups, in archives, and where the "
                   "database is larger than 256 MiB."),
         examples({"iosphoto backups", "iosphoto backups /media/disk --json"}),
         exitCodesOfALibrary()}));
    return {command, [request](Session &session, std::ostream &out) {
                return showBackups(*request, session, out);
            }};
}

} // namespace iosphoto::tool
