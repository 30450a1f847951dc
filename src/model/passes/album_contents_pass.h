#ifndef IOSPHOTO_ALBUM_CONTENTS_PASS_H
#define IOSPHOTO_ALBUM_CONTENTS_PASS_H

#include "model/passes/pass_context.h"

namespace iosphoto {

/// Fills the albums that readUserAlbums() appended.
/// @return the number of rows that name both an asset and an album, or a negated SQLite code
int readAlbumContents(const PassContext &context);

} // namespace iosphoto

#endif // IOSPHOTO_ALBUM_CONTENTS_PASS_H
