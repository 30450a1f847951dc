#ifndef IOSPHOTO_TOOL_UNSUPPORTED_CACHE_H
#define IOSPHOTO_TOOL_UNSUPPORTED_CACHE_H

#include "ithmb/ithmb.h"
#include "ithmb/thumb_formats.h"
#include "process/failure.h"

#include <string>

namespace iosphoto::tool {

/// The format of a cache that holds no thumbnails: nothing but zeros, as many as records of this
/// format and of no other kind take. A null pointer for any other file.
const ThumbFormat *formatWithoutThumbnails(ifile &file);

/// Why a file of no known format is not shown: what it is, as far as its records or its name tell.
Failure unsupportedCache(ifile &file, const std::string &path);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_UNSUPPORTED_CACHE_H
