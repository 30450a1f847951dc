#ifndef IOSPHOTO_TOOL_ROW_FORMAT_H
#define IOSPHOTO_TOOL_ROW_FORMAT_H

#include "rows/row_writer.h"

#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace iosphoto::tool {

enum class Format { Table, JsonDocument, JsonLines, Csv, Sqlite };

/// How rows are asked to be written.
struct RowFormat
{
    Format format = Format::Table;
    std::string sqliteFile;          ///< the file to write as Format::Sqlite
    std::vector<std::string> fields; ///< keys; empty: the usual ones of the format
};

/// A writer of any format but SQLite, which is no stream.
/// @param screen  that `out` is shown on
std::unique_ptr<RowWriter> makeRowWriter(Format format, std::ostream &out, const Screen &screen);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_ROW_FORMAT_H
