#ifndef IOSPHOTO_TOOL_DIFFERENCE_TABLE_H
#define IOSPHOTO_TOOL_DIFFERENCE_TABLE_H

#include "catalogue/difference.h"
#include "terminal/terminal.h"

#include <ostream>
#include <string>

namespace iosphoto::tool {

/// What the table says of an album or a photo.
struct DifferenceLine
{
    std::string change;
    std::string name;
    std::string what; ///< that the word for the change does not say; may be empty
};

DifferenceLine lineOf(const AlbumDifference &album);
DifferenceLine lineOf(const PhotoDifference &photo);

/// Prints for people a table of what differs and a line that sums it up, which stands alone when
/// nothing does.
void printDifferenceTable(const LibraryDifference &difference, const Screen &screen,
                          std::ostream &out);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_DIFFERENCE_TABLE_H
