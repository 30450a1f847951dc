#ifndef IOSPHOTO_TOOL_JSON_DOCUMENT_H
#define IOSPHOTO_TOOL_JSON_DOCUMENT_H

#include "catalogue/library.h"

#include <nlohmann/json.hpp>

#include <ostream>

namespace iosphoto::tool {

/// Keeps its keys in the order in which they were set.
using Json = nlohmann::ordered_json;

/// What every document of a library begins with: the source, and as what and when it was read.
Json libraryHead(const Library &library);

/// What names an album wherever one is mentioned.
Json albumReference(const CAlbumGroup &album);

/// `text`, or null where there is none.
Json textOrNull(const QString &text);
Json textOrNull(const std::string &text);

/// A time of the database as "2020-01-06T10:40:00Z"; null beyond the year 9999.
Json utcTime(double coreDataSeconds);

/// A document without a line break, UTF-8.
std::string oneLine(const Json &document);

/// Prints a document, indented. Bytes that are not UTF-8 become U+FFFD.
void print(const Json &document, std::ostream &out);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_JSON_DOCUMENT_H
