#ifndef IOSPHOTO_WRAPPING_H
#define IOSPHOTO_WRAPPING_H

#include <cstdint>

/// Arithmetic on the 32-bit offsets of thumbnail caches, which wraps: any index may be asked for.
namespace iosphoto {

constexpr std::int32_t wrapped(std::uint32_t value)
{
    return static_cast<std::int32_t>(value);
}

constexpr std::int32_t wrappingSum(std::int32_t a, std::int32_t b)
{
    return wrapped(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}

constexpr std::int32_t wrappingProduct(std::int32_t a, std::int32_t b)
{
    return wrapped(static_cast<std::uint32_t>(a) * static_cast<std::uint32_t>(b));
}

} // namespace iosphoto

#endif // IOSPHOTO_WRAPPING_H
