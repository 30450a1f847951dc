#ifndef IOSPHOTO_TOOL_INFO_DOCUMENT_H
#define IOSPHOTO_TOOL_INFO_DOCUMENT_H

#include "catalogue/library.h"
#include "catalogue/summary.h"
#include "text/json.h"

namespace iosphoto::tool {

/// What `iosphoto info --json` prints.
Json infoDocument(const Library &library, const Summary &summary);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_INFO_DOCUMENT_H
