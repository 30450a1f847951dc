#ifndef IOSPHOTO_TOOL_LIBRARY_HEAD_H
#define IOSPHOTO_TOOL_LIBRARY_HEAD_H

#include "catalogue/library.h"
#include "text/json.h"

namespace iosphoto::tool {

/// What every document of a library begins with: the source, and as what and when it was read.
Json libraryHead(const Library &library);

/// What names an album wherever one is mentioned.
Json albumReference(const CAlbumGroup &album);

/// A time of the database as "2020-01-06T10:40:00Z"; null beyond the year 9999.
Json utcTime(double coreDataSeconds);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_LIBRARY_HEAD_H
