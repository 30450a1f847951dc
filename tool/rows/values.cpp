#include "rows/values.h"

#include <fmt/format.h>

#include <cmath>

namespace iosphoto::tool {

Value durationValue(float seconds)
{
    return seconds == 0 || !std::isfinite(seconds) ? double(seconds)
                                                   : std::stod(fmt::format("{}", seconds));
}

Value timeValue(const std::optional<CoreDataTime> &time)
{
    const auto unixTime = time ? unixTimeOf(*time) : std::nullopt;
    return unixTime ? Value(*unixTime) : Value();
}

Value localDayValue(const CPhotoData &photo, const KnownDates &dates)
{
    const QString &day = photo.dateText;
    const bool isDay = !day.isEmpty() && day.at(0).isDigit();
    const auto created = dates.created(photo);
    return isDay && created && isOfTheCalendar(*created) ? Value(day.toStdString()) : Value();
}

} // namespace iosphoto::tool
