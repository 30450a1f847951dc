#ifndef IOSPHOTO_TOOL_PHOTO_VALUES_H
#define IOSPHOTO_TOOL_PHOTO_VALUES_H

#include "ios_photo.h"
#include "rows/value.h"

namespace iosphoto::tool {

/// A time of the database; nothing beyond all calendars.
Value utcTimeValue(double coreDataSeconds);

/// The local day on which a photo was created, as the library found it; nothing where it cannot
/// tell, for which it has a word, or where its time is beyond all calendars.
Value localDayValue(const CPhotoData &photo);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PHOTO_VALUES_H
