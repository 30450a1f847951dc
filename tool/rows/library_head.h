#ifndef IOSPHOTO_TOOL_LIBRARY_HEAD_H
#define IOSPHOTO_TOOL_LIBRARY_HEAD_H

#include "catalogue/library.h"
#include "rows/row_writer.h"
#include "text/json.h"

namespace iosphoto::tool {

/// What every document of a library begins with: the source, and as what and when it was read.
Json libraryHead(const Library &library);

/// How many rows of a table are left out, by the reason; null for one that a missing column would
/// tell.
/// @{
Json leftOutByReason(const ProbedSchema &schema, const PhotoAccount &account);
Json leftOutByReason(const ProbedSchema &schema, const AlbumAccount &account);
/// @}

/// What documents of the rows of a library begin with.
/// @param rows  what they are, such as "photos"
RowsHead rowsHead(const std::string &rows, const Library &library);

/// What names a library, under a key of its own and the key for its bytes.
Json sourceNamed(const std::string &key, const Library &library);

/// What names an album wherever one is mentioned.
Json albumReference(const CAlbumGroup &album);

/// "2020-01-06T10:40:00Z"; null beyond the years 1 to 9999.
Json timeOrNull(CoreDataTime time);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_LIBRARY_HEAD_H
