#ifndef IOSPHOTO_PHOTO_LIBRARY_PASS_H
#define IOSPHOTO_PHOTO_LIBRARY_PASS_H

#include "model/passes/pass_context.h"

namespace iosphoto {

/// Reads the photos synced from a computer into the second album.
/// @return the number of rows that were read, or a negated SQLite code
int readPhotoLibrary(const PassContext &context);

} // namespace iosphoto

#endif // IOSPHOTO_PHOTO_LIBRARY_PASS_H
