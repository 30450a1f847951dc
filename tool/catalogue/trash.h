#ifndef IOSPHOTO_TOOL_TRASH_H
#define IOSPHOTO_TOOL_TRASH_H

#include "catalogue/assets.h"
#include "ios_photo.h"
#include "sqlite/copy_database.h"
#include "time/epochs.h"

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace iosphoto::tool {

/// An asset's time in Recently Deleted.
struct TrashStay
{
    UnixTime trashed;
    UnixTime goes;         ///< when the device removes it for good
    std::int64_t daysLeft; ///< from the moment that the library is read as of; a begun day counts
};

/// What the records of a catalogue do not tell of the trash: since when an asset is in it.
class Trash
{
public:
    Trash() = default;
    /// Reads the trash of a database of iOS 8 or later; that of an older one is empty.
    /// @param asOf  the moment that the library is read as of
    Trash(const CopyDatabase &database, UnixTime asOf);

    /// Nothing for an asset that is not there, and where the database does not say since when.
    std::optional<TrashStay> stayOf(const Asset &asset) const;

    /// Whether the trash was emptied of a photo that a catalogue shows all the same.
    bool isEmptiedOf(const CPhotoData &photo) const;
    /// How many photos of a catalogue these are.
    std::int64_t emptiedPhotos(const std::vector<CAlbumGroup> &catalogue) const;

private:
    struct Date
    {
        CoreDataTime time;
        std::int32_t raw; ///< as the library reads it
    };

    /// Null where there is none.
    const Date *dateOf(const std::string &uuid, std::int32_t key) const;

    /// By uuid and key, as a database may have a uuid twice; ordered: no choice of uuids makes it
    /// slow.
    using Dates = std::map<std::pair<std::string, std::int32_t>, Date>;

    UnixTime asOf_;
    Dates trashedAt_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_TRASH_H
