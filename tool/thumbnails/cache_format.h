#ifndef IOSPHOTO_TOOL_CACHE_FORMAT_H
#define IOSPHOTO_TOOL_CACHE_FORMAT_H

#include "ithmb/ithmb.h"
#include "ithmb/thumb_formats.h"

namespace iosphoto::tool {

/// What a record of a cache holds.
enum class RecordState { Empty, Plausible, Damaged };

/// Whether `count` bytes from an offset are all there and 0.
bool isZero(ifile &file, long offset, int count);

/// Judges a record by its ends alone.
RecordState recordState(ifile &file, int recordSize, int index);

/// Records of a size that fit into the file, as far as the library reaches.
int recordCount(ifile &file, int recordSize);

/// How many of the first thousand records that are not empty are plausible, and how many are not. A
/// large file need not be read as a whole.
struct RecordFit
{
    int plausible = 0;
    int damaged = 0;
};
RecordFit fitOf(ifile &file, int recordSize);

/// The format in which most of the first thousand records that are not empty are plausible, the
/// last in probe order if that is so in several; a null pointer when more are damaged than
/// plausible, as in any file that is no cache.
const ThumbFormat *findFormat(ifile &file);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_CACHE_FORMAT_H
