/// What happened to the photos of a phone between two snapshots of its library.
#ifndef IOSPHOTO_TOOL_DIFFERENCE_H
#define IOSPHOTO_TOOL_DIFFERENCE_H

#include "catalogue/assets.h"

#include <optional>
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

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_DIFFERENCE_H
