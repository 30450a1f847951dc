#ifndef IOSPHOTO_TOOL_PRINTABLE_H
#define IOSPHOTO_TOOL_PRINTABLE_H

#include <string>

namespace iosphoto::tool {

/// `text` as one line that a terminal shows as it is: control characters and those that turn the
/// writing direction become "\n", "\u202e" and the like, bytes that are not UTF-8 become U+FFFD.
std::string printable(const std::string &text);

/// Whether `text` is UTF-8.
bool isUtf8(const std::string &text);

/// `text` with U+FFFD for each byte that is not UTF-8.
std::string asUtf8(const std::string &text);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PRINTABLE_H
