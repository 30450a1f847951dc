#include "rows/values.h"

namespace iosphoto::tool {

Value timeValue(CoreDataTime time)
{
    const auto unixTime = unixTimeOf(time);
    return unixTime ? Value(*unixTime) : Value();
}

Value localDayValue(const CPhotoData &photo)
{
    const QString &day = photo.dateText;
    const bool isDay = !day.isEmpty() && day.at(0).isDigit();
    return isDay && isOfTheCalendar(CoreDataTime{photo.createdTime}) ? Value(day.toStdString())
                                                                     : Value();
}

} // namespace iosphoto::tool
