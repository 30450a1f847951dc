#include "rows/values.h"

namespace iosphoto::tool {

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
