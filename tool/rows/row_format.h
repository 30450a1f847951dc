#ifndef IOSPHOTO_TOOL_ROW_FORMAT_H
#define IOSPHOTO_TOOL_ROW_FORMAT_H

#include "rows/row_writer.h"

#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// How rows are asked to be written: in at most one of the formats, otherwise as a table.
struct RowFormat
{
    bool json = false;
    bool jsonLines = false;
    bool csv = false;
    std::optional<std::string> sqlite; ///< the file to write
    std::vector<std::string> fields;   ///< keys; empty: the usual ones of the format

    bool isTable() const { return !json && !jsonLines && !csv && !sqlite; }
};

/// A writer of any format but SQLite.
std::unique_ptr<RowWriter> makeRowWriter(const RowFormat &format, std::ostream &out);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_ROW_FORMAT_H
