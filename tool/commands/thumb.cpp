#include "commands/command.h"
#include "commands/help.h"
#include "commands/option_values.h"
#include "commands/row_format_options.h"
#include "files/standard_input.h"
#include "process/failure.h"
#include "terminal/paragraph.h"
#include "terminal/text_table.h"
#include "text/json.h"
#include "text/numbers.h"
#include "text/printable.h"
#include "text/translate.h"
#include "thumbnails/export.h"

#include <QString>

#include <limits>
#include <optional>

namespace iosphoto::tool {

namespace {

/// What `iosphoto thumb` is asked for. With none of index, all and sheet: the list.
struct ThumbRequest
{
    std::string cache;
    std::optional<int> index;          ///< write this thumbnail to `output`
    bool all = false;                  ///< write all thumbnails into the folder `output`
    std::optional<std::string> sheet;  ///< draw all on a contact sheet
    std::optional<std::string> output; ///< there with index and all
    bool asPng = false;                ///< with `all`
    bool isForced = false;             ///< files that are there give way
    Format format = Format::Table;
};

void printList(const ThumbCache &cache, const Screen &screen, std::ostream &out)
{
    using Align = TextTable::Align;
    printParagraph(out, screen,
                   counted(cache.recordCount(),
                           "format {1}, {0} record of {2} bytes, {3} with a thumbnail",
                           "format {1}, {0} records of {2} bytes, {3} with a thumbnail",
                           cache.format().code, grouped(cache.format().recordSize),
                           grouped(static_cast<int>(cache.thumbnails().size()))));
    out << '\n';
    TextTable table({{translate("INDEX"), Align::Right},
                     {translate("PIXELS"), Align::Right},
                     {translate("BMP BYTES"), Align::Right}});
    for (const Thumbnail &thumbnail : cache.thumbnails())
        table.add({std::to_string(thumbnail.index),
                   std::to_string(thumbnail.width) + "x" + std::to_string(thumbnail.height),
                   grouped(thumbnail.bytes)});
    table.print(out, screen);
}

void printWritten(const WrittenFiles &files, std::ostream &out)
{
    const std::string first = printable(files.begin()->second);
    const std::string last = printable(files.rbegin()->second);
    out << (files.size() == 1 ? translate("wrote {0}", first)
                              : translate("wrote {0} files, {1} to {2}",
                                          grouped(static_cast<int>(files.size())), first, last))
        << '\n';
}

Json thumbnailAsJson(const Thumbnail &thumbnail, const WrittenFiles &files)
{
    const auto file = files.find(thumbnail.index);
    return {{"index", thumbnail.index},
            {"width", thumbnail.width},
            {"height", thumbnail.height},
            {"bmpBytes", thumbnail.bytes},
            {"file", file != files.end() ? Json(file->second) : Json()},
            {"fileBytes", file != files.end() ? bytesOrNull(file->second) : Json()}};
}

void printAsJson(const ThumbCache &cache, const WrittenFiles &pictures, const WrittenFiles &sheets,
                 std::ostream &out)
{
    Json document = {{"cache", cache.path()},
                     {"cacheBytes", bytesOrNull(cache.path())},
                     {"format", cache.format().code},
                     {"recordSize", cache.format().recordSize},
                     {"recordCount", cache.recordCount()},
                     {"thumbnailCount", cache.thumbnails().size()},
                     {"isComplete", cache.missing().empty()}};
    Json &thumbnails = document["thumbnails"] = Json::array();
    for (const Thumbnail &thumbnail : cache.thumbnails())
        thumbnails.push_back(thumbnailAsJson(thumbnail, pictures));
    document["sheets"] = Json::array();
    Json &sheetBytes = document["sheetBytes"] = Json::array();
    for (const auto &[number, name] : sheets) {
        document["sheets"].push_back(name);
        sheetBytes.push_back(bytesOrNull(name));
    }
    print(document, out);
}

IfThere ifThereOf(const ThumbRequest &request)
{
    return request.isForced ? IfThere::Replace : IfThere::Refuse;
}

WrittenFiles writePictures(Session &session, const ThumbCache &cache, const ThumbRequest &request)
{
    const IfThere ifThere = ifThereOf(request);
    if (request.index)
        return exportOne(session, cache, cache.at(*request.index), *request.output, ifThere);
    if (request.all)
        return exportAll(session, cache, *request.output, request.asPng, ifThere);
    return {};
}

/// @param input  to keep what comes through standard input, while the cache is used
ThumbCache openCache(const std::string &name, std::optional<StandardInput> &input, Session &session)
{
    if (isStandardInput(name) && !redirectedInput()) {
        input.emplace(session.files);
        return ThumbCache(name, input->file());
    }
    const std::string file = isStandardInput(name) ? redirectedInput()->string() : name;
    session.files.protectFiles({file});
    session.files.willRead({file});
    return ThumbCache(file);
}

ExitStatus showThumbnails(const ThumbRequest &request, Session &session, std::ostream &out)
{
    if (request.output && !request.index && !request.all)
        throw Failure(WrongUsage,
                      translate("--output requires --index or --all; see iosphoto --help"));
    std::optional<StandardInput> input;
    const ThumbCache cache = openCache(request.cache, input, session);
    const WrittenFiles pictures = writePictures(session, cache, request);
    const WrittenFiles sheets =
        request.sheet ? exportSheets(session, cache, *request.sheet, ifThereOf(request))
                      : WrittenFiles();
    if (request.format == Format::JsonDocument)
        printAsJson(cache, pictures, sheets, out);
    else if (pictures.empty() && sheets.empty())
        printList(cache, session.terminal.screenOf(out), out);
    else
        printWritten(request.sheet ? sheets : pictures, out);
    // Who asked for one thumbnail has all of it.
    if (request.index || cache.missing().empty())
        return Good;
    out.flush(); // the list comes before what is missing from it
    session.terminal.printWarning(cache.missing());
    return Incomplete;
}

} // namespace

Command addThumb(CLI::App &app)
{
    const auto request = std::make_shared<ThumbRequest>();
    CLI::App &thumb =
        *app.add_subcommand("thumb", translate("List or write the pictures of a thumbnail cache"));
    thumb
        .add_option("CACHE", request->cache,
                    translate("thumbnail cache, such as .../Thumbnails/120x120.ithmb"))
        ->required()
        ->check(notEmpty());
    CLI::Option *output = thumb.add_option("-o,--output", request->output,
                                           translate("file (--index) or folder (--all) to write"));
    // As text: files are named "0010.bmp", and a zero in front must not make the index octal.
    const auto takeIndex = [request](const std::string &digits) {
        bool isInt = false;
        const int index = QString::fromStdString(digits).toInt(&isInt);
        request->index = isInt ? index : std::numeric_limits<int>::max();
    };
    CLI::Option *index = thumb
                             .add_option_function<std::string>(
                                 "--index", takeIndex,
                                 translate("write this thumbnail to --output, as .bmp or .png"))
                             ->type_name(translate("NUMBER"))
                             ->check(looksLike("[0-9]+", "7"))
                             ->needs(output);
    CLI::Option *all =
        thumb.add_flag("--all", request->all, translate("write all thumbnails into --output"))
            ->needs(output)
            ->excludes(index);
    thumb
        .add_flag("--png", request->asPng, translate("with --all: write PNG files instead of BMP"))
        ->needs(all);
    CLI::Option *sheet =
        thumb.add_option("--sheet", request->sheet,
                         translate("draw all on a contact sheet, a .png file; from "
                                   "501 on also on FILE-2.png and so on"));
    sheet->excludes(index, all, output);
    thumb.add_flag("--force", request->isForced,
                   translate("replace files that are there; without it, nothing is written then"));
    output->type_name(translate("FILE") + "|" + translate("FOLDER"))->check(notEmpty());
    sheet->type_name(translate("FILE"))->check(notEmpty());
    addFormatFlag(thumb, request->format, Format::JsonDocument, translate("print a JSON document"));
    thumb.footer(helpFooter(
        {examples({"iosphoto thumb 120x120.ithmb",
                   "iosphoto thumb 120x120.ithmb --index 7 -o photo.png",
                   "iosphoto thumb 120x120.ithmb --all -o thumbnails",
                   "iosphoto thumb 120x120.ithmb --sheet sheet.png"}),
         translate(
             "Exit: 0 good, 1 incomplete, 2 wrong usage, 3 or 4 unusable files; see the README")}));
    return {&thumb, [request](Session &session, std::ostream &out) {
                return showThumbnails(*request, session, out);
            }};
}

} // namespace iosphoto::tool
