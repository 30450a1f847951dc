#ifndef IOSPHOTO_TOOL_COUNTED_H
#define IOSPHOTO_TOOL_COUNTED_H

#include <cstdint>
#include <string>

namespace iosphoto::tool {

/// A number as "28,828".
std::string grouped(int number);

/// A number of things, as "1 record" or "2,000 records".
std::string counted(int number, const std::string &thing);

/// A number of bytes as "2.5 MB".
std::string readableSize(std::int64_t bytes);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_COUNTED_H
