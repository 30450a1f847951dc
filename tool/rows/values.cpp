#include "rows/values.h"

#include "time/time_text.h"

namespace iosphoto::tool {

Value utcTimeValue(double coreDataSeconds)
{
    const auto unixTime = unixTimeOf(coreDataSeconds);
    return unixTime ? Value(UtcTime{*unixTime}) : Value();
}

Value localDayValue(const CPhotoData &photo)
{
    const QString &day = photo.dateText;
    const bool isDay = !day.isEmpty() && day.at(0).isDigit();
    return isDay && isOfTheCalendar(photo.createdTime) ? Value(day.toStdString()) : Value();
}

} // namespace iosphoto::tool
