#ifndef IOSPHOTO_TOOL_DIFFERENCE_DOCUMENT_H
#define IOSPHOTO_TOOL_DIFFERENCE_DOCUMENT_H

#include "catalogue/difference.h"
#include "catalogue/library.h"
#include "text/json.h"

namespace iosphoto::tool {

/// What a document says besides its photos: the two libraries, the counts and the albums.
Json differenceHead(const Library &before, const Library &after,
                    const LibraryDifference &difference);

/// The facts of a photo that are compared, and its folder.
Json comparedFacts(const CPhotoData &photo);

/// A photo that differs.
Json asJson(const PhotoDifference &photo);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_DIFFERENCE_DOCUMENT_H
