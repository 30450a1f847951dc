#include "support/thumb_cache_builder.h"

#include "support/little_endian.h"

namespace iosphoto::test {

ThumbCacheBuilder &ThumbCacheBuilder::thumbnail(std::uint32_t width, std::uint32_t height,
                                                const ThumbPixels &pixels)
{
    for (int y = 0; y < layout_.side(); ++y)
        for (int x = 0; x < layout_.pixelsPerRow(); ++x)
            bytes_ += littleEndian(pixels(x, y), 2);
    bytes_ += "an id of 16 byte";
    for (const std::uint32_t word : {width, height, 0U})
        bytes_ += littleEndian(word, 4);
    return *this;
}

ThumbCacheBuilder &ThumbCacheBuilder::empty(int count)
{
    bytes_.append(static_cast<std::size_t>(count * layout_.recordSize()), '\0');
    return *this;
}

} // namespace iosphoto::test
