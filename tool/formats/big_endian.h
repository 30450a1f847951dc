#ifndef IOSPHOTO_TOOL_BIG_ENDIAN_H
#define IOSPHOTO_TOOL_BIG_ENDIAN_H

#include <cstdint>
#include <string_view>

namespace iosphoto::tool {

/// The number that bytes are, the most significant one first. Of more than eight the last eight
/// count.
constexpr std::uint64_t bigEndian(std::string_view bytes)
{
    std::uint64_t number = 0;
    for (const char byte : bytes)
        number = number << 8U | static_cast<unsigned char>(byte);
    return number;
}

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_BIG_ENDIAN_H
