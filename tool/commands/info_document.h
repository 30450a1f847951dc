#ifndef IOSPHOTO_TOOL_INFO_DOCUMENT_H
#define IOSPHOTO_TOOL_INFO_DOCUMENT_H

#include "catalogue/library.h"
#include "catalogue/summary.h"
#include "rows/log_changes.h"
#include "text/json.h"

namespace iosphoto::tool {

/// The name of what the log makes of a photo, such as "added".
const char *logChangeName(Change change);

/// What `iosphoto info --json` prints.
/// @param changes  of the write-ahead log; null where they are not known, or there are none
Json infoDocument(const Library &library, const Summary &summary, const LogChanges *changes);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_INFO_DOCUMENT_H
