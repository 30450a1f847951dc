#ifndef IOSPHOTO_TOOL_DIFFERENCE_TABLE_H
#define IOSPHOTO_TOOL_DIFFERENCE_TABLE_H

#include "catalogue/difference.h"
#include "terminal/terminal.h"

#include <ostream>

namespace iosphoto::tool {

/// Prints for people a table of what differs and a line that sums it up, which stands alone when
/// nothing does.
void printDifferenceTable(const LibraryDifference &difference, const Screen &screen,
                          std::ostream &out);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_DIFFERENCE_TABLE_H
