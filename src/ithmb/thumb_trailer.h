/// The trailer that every record of a thumbnail cache ends in: 16 bytes of an identifier, then
/// three little-endian words, width and height of the thumbnail in pixels and 0.
#ifndef IOSPHOTO_THUMB_TRAILER_H
#define IOSPHOTO_THUMB_TRAILER_H

#include "ithmb/ithmb.h"

#include <cstdint>
#include <optional>

namespace iosphoto {

constexpr int trailerSize = 28; ///< bytes

/// Where the words stand in the trailer.
namespace trailer_offset {
constexpr int width = 16;
constexpr int height = 20;
constexpr int zero = 24;
} // namespace trailer_offset

/// The bytes of the words, which alone tell whether a trailer is plausible.
constexpr int trailerWordsSize = trailerSize - trailer_offset::width;

/// A size that a trailer states, in pixels.
struct StatedSize
{
    std::uint32_t width;
    std::uint32_t height;
};

/// The size that the trailer up to byte `recordEnd` of a file states; nothing where the trailer is
/// not plausible.
std::optional<StatedSize> readStatedSize(ifile &file, int recordEnd);

} // namespace iosphoto

#endif // IOSPHOTO_THUMB_TRAILER_H
