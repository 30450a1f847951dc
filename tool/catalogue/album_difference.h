#ifndef IOSPHOTO_TOOL_ALBUM_DIFFERENCE_H
#define IOSPHOTO_TOOL_ALBUM_DIFFERENCE_H

#include "ios_photo.h"

#include <string>
#include <vector>

namespace iosphoto::tool {

/// The form of a uuid that snapshots share: a phone that was updated from iOS 7 writes it with
/// dashes and in capitals from then on.
std::string comparable(const std::string &uuid);

enum class AlbumChange { New, Gone, Renamed };

constexpr AlbumChange allAlbumChanges[] = {AlbumChange::New, AlbumChange::Gone,
                                           AlbumChange::Renamed};

/// For machines, such as "new".
const char *changeName(AlbumChange change);

/// An album of the table that differs between two snapshots.
struct AlbumDifference
{
    AlbumChange change;
    const CAlbumGroup *before; ///< null for a new one
    const CAlbumGroup *after;  ///< null for one that is gone
};

/// Those of the second catalogue in its order, then those that are gone in the order of the first.
std::vector<AlbumDifference> compareAlbums(const std::vector<CAlbumGroup> &before,
                                           const std::vector<CAlbumGroup> &after);

/// The albums of the table in `albums` that are not in `others`, by their uuids.
std::vector<const CAlbumGroup *> albumsMissingFrom(const std::vector<const CAlbumGroup *> &others,
                                                   const std::vector<const CAlbumGroup *> &albums);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_ALBUM_DIFFERENCE_H
