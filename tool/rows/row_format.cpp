#include "rows/row_format.h"

#include "rows/csv_writer.h"
#include "rows/json_writers.h"
#include "rows/table_writer.h"

namespace iosphoto::tool {

std::unique_ptr<RowWriter> makeRowWriter(const RowFormat &format, std::ostream &out)
{
    if (format.json)
        return std::make_unique<JsonWriter>(out);
    if (format.jsonLines)
        return std::make_unique<JsonLinesWriter>(out);
    if (format.csv)
        return std::make_unique<CsvWriter>(out);
    return std::make_unique<TableWriter>(out);
}

} // namespace iosphoto::tool
