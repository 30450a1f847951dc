/// What happened to the photos of a phone between two snapshots of its library.
#ifndef IOSPHOTO_TOOL_DIFFERENCE_H
#define IOSPHOTO_TOOL_DIFFERENCE_H

#include "catalogue/assets.h"
#include "ios_photo.h"

#include <optional>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// In the order in which they are shown and counted.
enum class Change { New, Gone, Trashed, Restored, Edited, Moved, Changed };

constexpr Change allChanges[] = {Change::New,    Change::Gone,  Change::Trashed, Change::Restored,
                                 Change::Edited, Change::Moved, Change::Changed};

/// For machines, such as "new".
const char *changeName(Change change);

/// What a person cares about beside trash, edits and albums.
enum class ChangedField { Favorite, Hidden, FileName, Created };

constexpr ChangedField allChangedFields[] = {ChangedField::Favorite, ChangedField::Hidden,
                                             ChangedField::FileName, ChangedField::Created};

/// As the key of the fact, such as "isFavorite".
const char *fieldName(ChangedField field);

/// A photo that is not the same in both snapshots.
struct PhotoDifference
{
    std::optional<Asset> before;                  ///< nothing for a new one
    std::optional<Asset> after;                   ///< nothing for one that is gone
    std::vector<Change> changes;                  ///< at least one, each once and in order
    std::vector<const CAlbumGroup *> addedTo;     ///< albums of the table, of the second snapshot
    std::vector<const CAlbumGroup *> removedFrom; ///< likewise, of the first
    std::vector<ChangedField> changedFields;

    /// The photo as it is now, or as it was when it is gone.
    const Asset &latest() const { return after ? *after : *before; }
};

struct PhotoComparison
{
    /// Those of the second snapshot in its order, then those that are gone in the order of the
    /// first.
    std::vector<PhotoDifference> differences;
    std::size_t inBoth = 0; ///< photos that both snapshots have, the same or not
};

/// Matches photos by their uuids, those without one by folder and file name. The trash takes a
/// photo out of its albums and gives it back to them; that is not reported as a move.
/// @param before, after  have to outlive the result
PhotoComparison comparePhotos(const AssetList &before, const AssetList &after);

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

#endif // IOSPHOTO_TOOL_DIFFERENCE_H
