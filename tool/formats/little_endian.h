#ifndef IOSPHOTO_TOOL_LITTLE_ENDIAN_H
#define IOSPHOTO_TOOL_LITTLE_ENDIAN_H

#include <cstdint>
#include <string_view>

namespace iosphoto::tool {

/// The number that bytes are, the least significant one first. Of more than eight the first eight
/// count.
constexpr std::uint64_t littleEndian(std::string_view bytes)
{
    std::uint64_t number = 0;
    unsigned shift = 0;
    for (const char byte : bytes.substr(0, sizeof number)) {
        number |= std::uint64_t{static_cast<unsigned char>(byte)} << shift;
        shift += 8;
    }
    return number;
}

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_LITTLE_ENDIAN_H
