#ifndef IOSPHOTO_TOOL_KNOWN_FIELDS_H
#define IOSPHOTO_TOOL_KNOWN_FIELDS_H

#include "catalogue/library.h"
#include "catalogue/photo_selection.h"
#include "terminal/terminal.h"

#include <string>

namespace iosphoto::tool {

/// That an option can choose by a field: without its column nothing would fit, as though there were
/// no such photos. Throws Failure that names the column.
void requireKnown(const std::string &option, const std::string &field, const Library &library);

/// Warns that an expression takes a field for null in every photo, for want of its column.
void sayThatItIsNull(const std::string &option, const std::string &field, const Library &library,
                     const Terminal &terminal);

/// The same as requireKnown() for all that photos are chosen and sorted by, but their albums.
void requireKnownFields(const PhotoChoice &choice, const Library &library);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_KNOWN_FIELDS_H
