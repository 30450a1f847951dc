#ifndef IOSPHOTO_TOOL_CACHE_FORMAT_H
#define IOSPHOTO_TOOL_CACHE_FORMAT_H

#include "ithmb/ithmb.h"
#include "ithmb/thumb_formats.h"

namespace iosphoto::tool {

/// What a record of a cache holds.
enum class RecordState { Empty, Plausible, Damaged };

RecordState recordState(ifile &file, const ThumbFormat &format, int index);

/// Records of a format that fit into the file, as far as the library reaches.
int recordCount(ifile &file, const ThumbFormat &format);

/// The format in which most records of a file are plausible, the last in probe order if it is that
/// of several; a null pointer when more records are damaged than plausible, as in any file that is
/// no cache.
const ThumbFormat *findFormat(ifile &file);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_CACHE_FORMAT_H
