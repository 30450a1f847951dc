#ifndef IOSPHOTO_ORIGINAL_SIZE_H
#define IOSPHOTO_ORIGINAL_SIZE_H

#include <cstdint>

namespace iosphoto {

/// Sizes from 2 GiB on were stored as 32 bits with a sign; this gives them back, up to 4 GiB.
inline std::int64_t repairedSize(std::int64_t size)
{
    return size < 0 ? static_cast<std::uint32_t>(size) : size;
}

} // namespace iosphoto

#endif // IOSPHOTO_ORIGINAL_SIZE_H
