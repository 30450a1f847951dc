#ifndef IOSPHOTO_TOOL_ROW_BLOCKS_H
#define IOSPHOTO_TOOL_ROW_BLOCKS_H

#include "output/terminal.h"

#include <ostream>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// Prints the rows of a table, such as one that is too wide for a terminal: each as a block of
/// lines "HEADING  value", without those that have no value. Long values go on in further lines.
void printBlocks(std::ostream &out, const std::vector<std::string> &headings,
                 const std::vector<std::vector<std::string>> &rows, const Screen &screen);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_ROW_BLOCKS_H
