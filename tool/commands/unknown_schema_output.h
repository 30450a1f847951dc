#ifndef IOSPHOTO_TOOL_UNKNOWN_SCHEMA_OUTPUT_H
#define IOSPHOTO_TOOL_UNKNOWN_SCHEMA_OUTPUT_H

#include "rows/row_format.h"
#include "schema/unknown_schema.h"
#include "terminal/terminal.h"

#include <ostream>

namespace iosphoto::tool {

/// Prints what the makers of the tool need to know, as a table, a document or a line.
void print(const UnknownSchema &schema, Format format, const Screen &screen, std::ostream &out);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_UNKNOWN_SCHEMA_OUTPUT_H
