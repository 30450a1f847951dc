#ifndef IOSPHOTO_TOOL_CONTACT_SHEET_H
#define IOSPHOTO_TOOL_CONTACT_SHEET_H

#include "thumbnails/thumb_cache.h"

#include <QImage>

namespace iosphoto::tool {

/// Thumbnails on one sheet at most; more go to further sheets.
constexpr int thumbnailsPerSheet = 500;

/// Sheets that all thumbnails of a cache take.
int sheetCount(const ThumbCache &cache);

/// Draws a sheet, counted from 0: pictures in rows, each with its index below.
QImage drawSheet(const ThumbCache &cache, int sheet);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_CONTACT_SHEET_H
