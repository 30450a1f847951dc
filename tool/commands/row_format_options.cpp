#include "commands/row_format_options.h"

#include "commands/option_values.h"
#include "text/translate.h"

namespace iosphoto::tool {

void addRowFormatOptions(CLI::App &command, RowFormat &format)
{
    CLI::Option *const json =
        command.add_flag("--json", format.json, translate("print a JSON document"));
    CLI::Option *const jsonLines =
        command.add_flag("--jsonl", format.jsonLines,
                         translate("print JSON Lines: an object a line, with its source"));
    CLI::Option *const csv = command.add_flag(
        "--csv", format.csv,
        translate(
            "print CSV; an apostrophe stands in front of a text that a spreadsheet would run as "
            "a formula"));
    CLI::Option *const sqlite =
        command
            .add_option(
                "--sqlite", format.sqlite,
                translate("write a SQLite database; one that iosphoto wrote before is replaced"))
            ->type_name(translate("FILE"))
            ->check(notEmpty());
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
