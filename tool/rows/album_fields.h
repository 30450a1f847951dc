#ifndef IOSPHOTO_TOOL_ALBUM_FIELDS_H
#define IOSPHOTO_TOOL_ALBUM_FIELDS_H

#include "rows/fields.h"

namespace iosphoto::tool {

/// An album with what its fields need of its photos.
struct AlbumRow
{
    explicit AlbumRow(const CAlbumGroup &group);

    const CAlbumGroup &album;
    std::int64_t bytes = 0;            ///< of all its photos
    const CPhotoData *first = nullptr; ///< the photo that was created first
    const CPhotoData *last = nullptr;
};

/// What is known about an album.
FieldTable<AlbumRow> albumFields();

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_ALBUM_FIELDS_H
