#include "support/thumb_cache_builder.h"

namespace iosphoto::test {

namespace {

void appendLittleEndian(std::string &bytes, std::uint32_t value, int size)
{
    for (int i = 0; i < size; ++i, value >>= 8)
        bytes += static_cast<char>(value & 0xFF);
}

} // namespace

ThumbCacheBuilder &ThumbCacheBuilder::thumbnail(std::uint32_t width, std::uint32_t height,
                                                const ThumbPixels &pixels)
{
    for (int y = 0; y < layout_.side(); ++y)
        for (int x = 0; x < layout_.pixelsPerRow(); ++x)
            appendLittleEndian(bytes_, pixels(x, y), 2);
    bytes_ += "an id of 16 byte";
    for (const std::uint32_t word : {width, height, 0U})
        appendLittleEndian(bytes_, word, 4);
    return *this;
}

ThumbCacheBuilder &ThumbCacheBuilder::empty(int count)
{
    bytes_.append(static_cast<std::size_t>(count * layout_.recordSize()), '\0');
    return *this;
}

} // namespace iosphoto::test
