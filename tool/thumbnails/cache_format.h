#ifndef IOSPHOTO_TOOL_CACHE_FORMAT_H
#define IOSPHOTO_TOOL_CACHE_FORMAT_H

#include "ithmb/ithmb.h"
#include "ithmb/thumb_formats.h"

namespace iosphoto::tool {

/// What a record of a cache holds.
enum class RecordState { Empty, Plausible, Damaged };

/// Whether `count` bytes from an offset are all there and 0.
bool isZero(ifile &file, long offset, int count);

RecordState recordState(ifile &file, const ThumbFormat &format, int index);

/// Records of a format that fit into the file, as far as the library reaches.
int recordCount(ifile &file, const ThumbFormat &format);

/// The format in which most of the first thousand records that are not empty are plausible, the
/// last in probe order if that is so in several; a null pointer when more are damaged than
/// plausible, as in any file that is no cache.
const ThumbFormat *findFormat(ifile &file);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_CACHE_FORMAT_H
