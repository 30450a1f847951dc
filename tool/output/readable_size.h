#ifndef IOSPHOTO_TOOL_READABLE_SIZE_H
#define IOSPHOTO_TOOL_READABLE_SIZE_H

#include <cstdint>
#include <string>

namespace iosphoto::tool {

/// A number of bytes as "45.9 MB".
std::string readableSize(std::int64_t bytes);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_READABLE_SIZE_H
