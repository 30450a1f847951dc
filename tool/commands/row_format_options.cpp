#include "commands/row_format_options.h"

#include "commands/option_values.h"
#include "text/translate.h"

namespace iosphoto::tool {

namespace {

const char *flagOf(Format format)
{
    return format == Format::JsonDocument ? "--json"
           : format == Format::JsonLines  ? "--jsonl"
                                          : "--csv";
}

CLI::Option *addSqlite(CLI::App &command, RowFormat &format)
{
    const auto choose = [&format](const std::string &file) {
        format.format = Format::Sqlite;
        format.sqliteFile = file;
    };
    return command
        .add_option_function<std::string>(
            "--sqlite", choose,
            translate("write a SQLite database; one that iosphoto wrote before is replaced"))
        ->type_name(translate("FILE"))
        ->check(notEmpty());
}

} // namespace

CLI::Option *addFormatFlag(CLI::App &command, Format &chosen, Format format,
                           const std::string &description)
{
    return command.add_flag_callback(
        flagOf(format), [&chosen, format] { chosen = format; }, description);
}

void addRowFormatOptions(CLI::App &command, RowFormat &format)
{
    CLI::Option *const json = addFormatFlag(command, format.format, Format::JsonDocument,
                                            translate("print a JSON document"));
    CLI::Option *const jsonLines =
        addFormatFlag(command, format.format, Format::JsonLines,
                      translate("print JSON Lines: an object a line, with its source"));
    CLI::Option *const csv =
        addFormatFlag(command, format.format, Format::Csv,
                      translate("print CSV; an apostrophe stands in front of a text that a "
                                "spreadsheet would run as a formula"));
    CLI::Option *const sqlite = addSqlite(command, format);
    CLI::Option *const fields = command.add_option(
        "--fields", format.fields,
        translate("show these fields in this order, such as uuid,path (see FIELDS "
                  "below); not with --sqlite, which has all"));
    takeCommaList(*fields).type_name(translate("FIELDS"));
    json->excludes(jsonLines, csv, sqlite);
    jsonLines->excludes(csv, sqlite);
    csv->excludes(sqlite);
    sqlite->excludes(fields);
}

} // namespace iosphoto::tool
