#ifndef IOSPHOTO_THUMB_DECODE_H
#define IOSPHOTO_THUMB_DECODE_H

#include "ithmb/ithmb.h"
#include "ithmb/thumb_formats.h"

namespace iosphoto {

/// Decodes record `index` of a cache of this format; see the decoders of ithmb.h.
void decodeThumb(const ThumbFormat &format, ifile &file, int index, char *buffer, int &size,
                 int &width, int &height);

} // namespace iosphoto

#endif // IOSPHOTO_THUMB_DECODE_H
