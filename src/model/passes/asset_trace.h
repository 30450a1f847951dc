#ifndef IOSPHOTO_ASSET_TRACE_H
#define IOSPHOTO_ASSET_TRACE_H

#include "ios_photo.h"
#include "model/store/row.h"

namespace iosphoto {

/// Writes a debug line with the file name and the three dates of a Camera Roll row if it is one of
/// the few assets by which date trouble is diagnosed.
void traceIfWatched(const CPhotoData &photo, const Row &row);

} // namespace iosphoto

#endif // IOSPHOTO_ASSET_TRACE_H
