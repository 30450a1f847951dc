#ifndef IOSPHOTO_TOOL_ROW_FORMAT_OPTIONS_H
#define IOSPHOTO_TOOL_ROW_FORMAT_OPTIONS_H

#include "rows/row_format.h"

#include <CLI/CLI.hpp>

namespace iosphoto::tool {

/// Adds the options that say in which format rows are written; they exclude each other.
void addRowFormatOptions(CLI::App &command, RowFormat &format);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_ROW_FORMAT_OPTIONS_H
