#ifndef IOSPHOTO_TOOL_KNOWN_DATES_H
#define IOSPHOTO_TOOL_KNOWN_DATES_H

#include "ios_photo.h"
#include "sqlite/copy_database.h"
#include "time/epochs.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// The dates of photos. A record holds 0 where its row has no date, which is also 2001-01-01 00:00
/// UTC, and the number that a text begins with where that stands in place of a date; only the row
/// tells these apart.
class KnownDates
{
public:
    KnownDates() = default;
    /// Throws Failure when the rows cannot be read.
    KnownDates(const CopyDatabase &database, const std::vector<CAlbumGroup> &catalogue);

    /// Each is nothing where the row has no date.
    /// @{
    std::optional<CoreDataTime> created(const CPhotoData &photo) const;
    std::optional<CoreDataTime> modified(const CPhotoData &photo) const;
    std::optional<CoreDataTime> added(const CPhotoData &photo) const;
    /// @}

private:
    /// Of each date of a photo whether something is the case.
    struct OfDates
    {
        bool created = false;
        bool modified = false;
        bool added = false;
    };
    using ByUuid = std::map<std::string, OfDates>; // ordered: no choice of uuids makes it slow

    std::optional<CoreDataTime> known(const CPhotoData &photo, double CPhotoData::*time,
                                      bool OfDates::*date) const;

    ByUuid atEpoch_;
    ByUuid texts_; ///< or other values that are no numbers
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_KNOWN_DATES_H
