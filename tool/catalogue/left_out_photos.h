/// The rows of the asset table that no album of the catalogue shows.
#ifndef IOSPHOTO_TOOL_LEFT_OUT_PHOTOS_H
#define IOSPHOTO_TOOL_LEFT_OUT_PHOTOS_H

#include "catalogue/left_out_reasons.h"
#include "catalogue/reading_facts.h"
#include "records/owned_catalogue.h"
#include "sqlite/copy_database.h"

#include <vector>

namespace iosphoto::tool {

/// Photos that the catalogue leaves out, as records that hold what their rows say: names, sizes,
/// dates, and whether they are videos, favorites, hidden, deleted or of a burst.
class LeftOutPhotos
{
public:
    /// One album with the photos; it has no name, kind or uuid.
    const std::vector<CAlbumGroup> &catalogue() const { return records_.albums; }
    /// @param position  in that album
    PhotoReason reason(std::size_t position) const { return reasons_.at(position); }

    void add(CPhotoData photo, PhotoReason reason);

private:
    OwnedCatalogue records_;
    std::vector<PhotoReason> reasons_;
};

/// Compares the asset table with what the catalogue shows. Throws Failure when the table cannot be
/// read.
/// @param photos  takes the photos that are left out; may be null
PhotoAccount accountOfPhotos(const CopyDatabase &database, const ReadingFacts &reading,
                             LeftOutPhotos *photos);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_LEFT_OUT_PHOTOS_H
