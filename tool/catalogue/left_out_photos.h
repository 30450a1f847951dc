/// The rows of the asset table that no album of the catalogue shows.
#ifndef IOSPHOTO_TOOL_LEFT_OUT_PHOTOS_H
#define IOSPHOTO_TOOL_LEFT_OUT_PHOTOS_H

#include "catalogue/assets.h"
#include "catalogue/left_out_reasons.h"
#include "catalogue/reading_facts.h"
#include "sqlite/copy_database.h"

#include <memory>
#include <optional>
#include <vector>

namespace iosphoto::tool {

/// Photos that the catalogue leaves out, as records that hold what their rows say.
class LeftOutPhotos
{
public:
    const std::vector<std::unique_ptr<CPhotoData>> &records() const { return records_; }
    /// Nothing for an asset of the catalogue.
    std::optional<PhotoReason> reasonFor(const Asset &asset) const;

    void add(CPhotoData photo, PhotoReason reason);

private:
    std::vector<std::unique_ptr<CPhotoData>> records_;
    std::vector<PhotoReason> reasons_;
};

/// Compares the asset table with what the catalogue shows, and adds to its records what the library
/// knows of a photo only in the Camera Roll: the flags of what is hidden, in the trash, a frame of
/// a burst or synced. Throws Failure when the table cannot be read.
/// @param photos  takes the photos that are left out; may be null
PhotoAccount accountOfPhotos(const CopyDatabase &database, const ReadingFacts &reading,
                             LeftOutPhotos *photos);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_LEFT_OUT_PHOTOS_H
