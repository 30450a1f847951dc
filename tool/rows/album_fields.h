#ifndef IOSPHOTO_TOOL_ALBUM_FIELDS_H
#define IOSPHOTO_TOOL_ALBUM_FIELDS_H

#include "rows/fields.h"

namespace iosphoto::tool {

/// An album with what its fields need of its photos.
struct AlbumRow
{
    AlbumRow(const CAlbumGroup &group, const KnownDates &dates);

    const CAlbumGroup &album;
    std::int64_t bytes = 0;            ///< of all its photos
    std::optional<CoreDataTime> first; ///< when the first of its photos was created
    std::optional<CoreDataTime> last;
};

/// What is known about an album.
FieldTable<AlbumRow> albumFields();

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_ALBUM_FIELDS_H
