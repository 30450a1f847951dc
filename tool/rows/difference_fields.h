#ifndef IOSPHOTO_TOOL_DIFFERENCE_FIELDS_H
#define IOSPHOTO_TOOL_DIFFERENCE_FIELDS_H

#include "catalogue/difference.h"
#include "catalogue/library.h"
#include "rows/fields.h"
#include "rows/photo_fields.h"
#include "text/json.h"

#include <map>

namespace iosphoto::tool {

/// A photo that differs between two snapshots, with all that its fields are made of.
struct DifferenceRow
{
    /// The facts of a photo in one of them.
    struct Side
    {
        CPhotoData facts;
        const KnownDates &dates;
        std::optional<TrashStay> trash;
    };

    const PhotoDifference &photo;
    std::optional<Side> before;
    std::optional<Side> after;
    Items changes;
    Items addedTo;
    Items removedFrom;
    Items changedFields;
};

/// Makes the rows of photos that differ.
class DifferenceRows
{
public:
    /// @param before, after  have to outlive the rows
    DifferenceRows(const Library &before, const Library &after);

    DifferenceRow of(const PhotoDifference &photo) const;

private:
    const Library &before_;
    const Library &after_;
    AlbumItems albumsBefore_;
    AlbumItems albumsAfter_;
    std::map<Change, ListItem> changes_;
    std::map<const ComparedFact *, ListItem> changedFields_;
};

/// What is known about a photo that differs.
FieldTable<DifferenceRow> differenceFields();

/// The albums that differ, as documents list them.
Json albumChanges(const std::vector<AlbumDifference> &differences);

/// What a document says besides its photos: the two libraries, the counts and the albums.
RowsHead differenceHead(const Library &before, const Library &after,
                        const LibraryDifference &difference);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_DIFFERENCE_FIELDS_H
