#ifndef IOSPHOTO_TOOL_LIBRARY_DIFFERENCE_H
#define IOSPHOTO_TOOL_LIBRARY_DIFFERENCE_H

#include "catalogue/album_difference.h"
#include "catalogue/difference.h"

namespace iosphoto::tool {

/// Everything that differs between two snapshots of a library.
struct LibraryDifference
{
    std::vector<AlbumDifference> albums;
    PhotoComparison photos;

    bool isNone() const { return albums.empty() && photos.differences.empty(); }
    int count(Change change) const;
    int count(AlbumChange change) const;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_LIBRARY_DIFFERENCE_H
