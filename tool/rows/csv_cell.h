#ifndef IOSPHOTO_TOOL_CSV_CELL_H
#define IOSPHOTO_TOOL_CSV_CELL_H

#include <string>

namespace iosphoto::tool {

/// Appends a text as a cell of CSV: guarded against running as a formula, and quoted where needed.
void appendCsvCell(std::string &line, const std::string &text);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_CSV_CELL_H
