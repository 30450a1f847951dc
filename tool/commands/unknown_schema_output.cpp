#include "commands/unknown_schema_output.h"

#include "terminal/text_table.h"
#include "text/json.h"
#include "text/lists.h"
#include "text/printable.h"
#include "text/translate.h"

namespace iosphoto::tool {

namespace {

std::string modelOf(const UnknownSchema &schema)
{
    const std::optional<std::int64_t> &model = schema.metadata.modelVersion;
    return model ? std::to_string(*model) : "";
}

void printText(const UnknownSchema &schema, const Screen &screen, std::ostream &out)
{
    printBlocks(out,
                {translate("Schema"), translate("Model"), translate("Build"), translate("Nearest"),
                 translate("Missing")},
                {{translate("unknown"), modelOf(schema), printable(schema.metadata.build),
                  schema.nearest, printable(joinedTexts(schema.missing, ", "))}},
                screen);
    out << '\n';
    for (const TableWithColumns &table : schema.tables)
        printBlocks(out, {translate("TABLE"), translate("COLUMNS")},
                    {{printable(table.name), printable(joinedTexts(table.columns, ", "))}}, screen);
}

Json documentOf(const UnknownSchema &schema)
{
    const std::optional<std::int64_t> &model = schema.metadata.modelVersion;
    Json tables = Json::array();
    for (const TableWithColumns &table : schema.tables)
        tables.push_back({{"name", table.name}, {"columns", table.columns}});
    return {{"schema", nullptr},
            {"modelVersion", model ? Json(*model) : Json()},
            {"schemaBuild", textOrNull(schema.metadata.build)},
            {"nearestSchema", textOrNull(schema.nearest)},
            {"missing", schema.missing},
            {"tables", tables}};
}

} // namespace

void print(const UnknownSchema &schema, Format format, const Screen &screen, std::ostream &out)
{
    if (format == Format::JsonDocument)
        print(documentOf(schema), out);
    else if (format == Format::JsonLines)
        out << oneLine(documentOf(schema)) << '\n';
    else
        printText(schema, screen, out);
}

} // namespace iosphoto::tool
