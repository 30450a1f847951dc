#ifndef IOSPHOTO_TESTS_LITTLE_ENDIAN_H
#define IOSPHOTO_TESTS_LITTLE_ENDIAN_H

#include <cstdint>
#include <string>

namespace iosphoto::test {

/// The lowest `size` bytes of a value, the lowest first.
inline std::string littleEndian(std::uint32_t value, int size)
{
    std::string bytes;
    for (int i = 0; i < size; ++i, value >>= 8)
        bytes += static_cast<char>(value & 0xFF);
    return bytes;
}

inline std::string littleEndian32(int value)
{
    return littleEndian(static_cast<std::uint32_t>(value), 4);
}

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_LITTLE_ENDIAN_H
