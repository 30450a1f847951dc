#ifndef IOSPHOTO_TOOL_ROW_FORMAT_OPTIONS_H
#define IOSPHOTO_TOOL_ROW_FORMAT_OPTIONS_H

#include "rows/row_format.h"

#include <CLI/CLI.hpp>

namespace iosphoto::tool {

/// Adds the options that say in which format rows are written; they exclude each other.
void addRowFormatOptions(CLI::App &command, RowFormat &format);

/// Adds --json, --jsonl or --csv, which chooses that format.
CLI::Option *addFormatFlag(CLI::App &command, Format &chosen, Format format,
                           const std::string &description);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_ROW_FORMAT_OPTIONS_H
