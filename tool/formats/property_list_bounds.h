#ifndef IOSPHOTO_TOOL_PROPERTY_LIST_BOUNDS_H
#define IOSPHOTO_TOOL_PROPERTY_LIST_BOUNDS_H

#include <string>

namespace iosphoto::tool {

/// Whether a property list has no more values, and none deeper inside others, than a real one.
/// libplist follows any nesting until the stack is full, and copies what is referred to twice, so
/// that a small file can fill the memory.
bool isWithinBounds(const std::string &propertyList);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PROPERTY_LIST_BOUNDS_H
