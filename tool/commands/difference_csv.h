#ifndef IOSPHOTO_TOOL_DIFFERENCE_CSV_H
#define IOSPHOTO_TOOL_DIFFERENCE_CSV_H

#include "catalogue/difference.h"

#include <ostream>

namespace iosphoto::tool {

/// Prints the photos that differ as CSV: what documents have, with the facts before and after as
/// columns such as "before.fileName".
void printDifferenceAsCsv(const std::vector<PhotoDifference> &photos, std::ostream &out);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_DIFFERENCE_CSV_H
