#ifndef IOSPHOTO_TOOL_VALUES_H
#define IOSPHOTO_TOOL_VALUES_H

#include "catalogue/known_dates.h"
#include "ios_photo.h"
#include "time/epochs.h"

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace iosphoto::tool {

/// An item of a list, such as an album, made once for all the rows that have it.
struct ListItem
{
    std::string json;  ///< as a JSON value, UTF-8
    std::string plain; ///< in CSV
    std::string shown; ///< in tables
};

/// The items belong to somebody who outlives the rows.
using Items = std::vector<const ListItem *>;

/// What a row has in one field. The first is for what is unknown: null. A time is shown in UTC in
/// documents, and local in tables.
using Value =
    std::variant<std::monostate, bool, std::int64_t, double, std::string, UnixTime, Items>;

/// The text, or nothing where it is empty.
inline Value knownText(std::string text)
{
    return text.empty() ? Value() : Value(std::move(text));
}

/// The shortest number that a record's seconds can be: 33.4, not 33.400001525878906.
Value durationValue(float seconds);

/// A time of the database; nothing where there is none, or one beyond all calendars.
Value timeValue(const std::optional<CoreDataTime> &time);

/// The local day on which a photo was created, as the library found it; nothing where it cannot
/// tell, for which it has a word, or where timeValue() is nothing.
Value localDayValue(const CPhotoData &photo, const KnownDates &dates);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_VALUES_H
