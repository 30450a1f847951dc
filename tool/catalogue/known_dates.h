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
/// UTC; only the row tells the two apart.
class KnownDates
{
public:
    KnownDates() = default;
    /// Looks at the rows only where a record holds such a date. Throws Failure when they cannot be
    /// read.
    KnownDates(const CopyDatabase &database, const std::vector<CAlbumGroup> &catalogue);

    /// Each is nothing where the row has no date.
    /// @{
    std::optional<CoreDataTime> created(const CPhotoData &photo) const;
    std::optional<CoreDataTime> modified(const CPhotoData &photo) const;
    std::optional<CoreDataTime> added(const CPhotoData &photo) const;
    /// @}

private:
    struct AtEpoch
    {
        bool created = false;
        bool modified = false;
        bool added = false;
    };

    std::optional<CoreDataTime> known(const CPhotoData &photo, double CPhotoData::*time,
                                      bool AtEpoch::*isAtEpoch) const;

    std::map<std::string, AtEpoch> atEpoch_; // by uuid; ordered: no choice of uuids makes it slow
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_KNOWN_DATES_H
