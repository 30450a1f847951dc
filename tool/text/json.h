#ifndef IOSPHOTO_TOOL_JSON_H
#define IOSPHOTO_TOOL_JSON_H

#include <nlohmann/json.hpp>

#include <ostream>
#include <string>

namespace iosphoto::tool {

/// Keeps its keys in the order in which they were set.
using Json = nlohmann::ordered_json;

/// `text`, or null where there is none.
Json textOrNull(const std::string &text);

/// The bytes of a text that is not UTF-8, such as the name of a file, as a URL writes them:
/// "caf%E9". Null for others, which a document gives back as they are.
Json bytesOrNull(const std::string &text);

/// A document without a line break, UTF-8.
std::string oneLine(const Json &document);

/// Prints a document, indented. Bytes that are not UTF-8 become U+FFFD.
void print(const Json &document, std::ostream &out);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_JSON_H
