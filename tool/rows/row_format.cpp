#include "rows/row_format.h"

#include "rows/csv_writer.h"
#include "rows/json_writers.h"
#include "rows/table_writer.h"

namespace iosphoto::tool {

std::unique_ptr<RowWriter> makeRowWriter(Format format, std::ostream &out, const Screen &screen)
{
    switch (format) {
    case Format::JsonDocument:
        return std::make_unique<JsonWriter>(out);
    case Format::JsonLines:
        return std::make_unique<JsonLinesWriter>(out);
    case Format::Csv:
        return std::make_unique<CsvWriter>(out, screen);
    case Format::Table:
    case Format::Sqlite:
        break;
    }
    return std::make_unique<TableWriter>(out, screen);
}

} // namespace iosphoto::tool
