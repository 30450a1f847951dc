#ifndef IOSPHOTO_TOOL_VERSIONS_H
#define IOSPHOTO_TOOL_VERSIONS_H

#include <string>

namespace iosphoto::tool {

/// The text if it looks like a version, such as "17.4.1", or a product type, such as "iPhone14,2";
/// else empty. What a source says can be anything, and much of it.
std::string versionOrNothing(const std::string &text);
std::string productOrNothing(const std::string &text);

/// The number with which a version or a build begins, such as 17 of "17.4.1". 0 where none does,
/// and the largest of all for one that is too large.
int firstNumber(const std::string &text);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_VERSIONS_H
