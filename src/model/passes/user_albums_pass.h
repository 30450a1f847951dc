#ifndef IOSPHOTO_USER_ALBUMS_PASS_H
#define IOSPHOTO_USER_ALBUMS_PASS_H

#include "model/passes/pass_context.h"

namespace iosphoto {

/// Appends the user's albums and My Photo Stream, without their photos.
/// @return the number of rows that were read, also those of albums that were there before, or a
/// negated SQLite code
int readUserAlbums(const PassContext &context);

} // namespace iosphoto

#endif // IOSPHOTO_USER_ALBUMS_PASS_H
