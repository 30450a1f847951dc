/// The three moves that pass records between their owners: a record belongs to exactly one album's
/// photo list, and is destroyed at once when no album keeps it.
#ifndef IOSPHOTO_RECORD_OWNERSHIP_H
#define IOSPHOTO_RECORD_OWNERSHIP_H

#include "ios_photo.h"

#include <memory>

namespace iosphoto {

/// Gives `photo` to `album`.
void append(CAlbumGroup &album, std::unique_ptr<CPhotoData> photo);

/// Gives `album` a copy of `photo` that carries the album's name and uuid.
void appendCopy(CAlbumGroup &album, const CPhotoData &photo);

/// Destroys every record of `albums` and leaves the albums empty.
void destroyRecords(std::vector<CAlbumGroup> &albums);

} // namespace iosphoto

#endif // IOSPHOTO_RECORD_OWNERSHIP_H
