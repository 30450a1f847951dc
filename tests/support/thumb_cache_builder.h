#ifndef IOSPHOTO_TESTS_THUMB_CACHE_BUILDER_H
#define IOSPHOTO_TESTS_THUMB_CACHE_BUILDER_H

#include <cstdint>
#include <functional>
#include <string>

namespace iosphoto::test {

/// The layout of a format's records, worked out from the side of its pictures: rows are made up to
/// a multiple of eight pixels, and a trailer of 28 bytes follows the last. Not taken from the
/// library's table, so that each checks the other.
class ThumbLayout
{
public:
    explicit ThumbLayout(int format) : side_(format) {}

    int side() const { return side_; }
    int pixelsPerRow() const { return (side_ + 7) / 8 * 8; }
    int trailerOffset() const { return pixelsPerRow() * side_ * 2; }
    int recordSize() const { return trailerOffset() + 28; }

private:
    int side_;
};

/// The 5-5-5 pixel of a record at a column and row, the top left one being (0, 0). Asked for the
/// columns that fill up the rows, too.
using ThumbPixels = std::function<std::uint16_t(int x, int y)>;

/// Makes a thumbnail cache, record by record.
class ThumbCacheBuilder
{
public:
    explicit ThumbCacheBuilder(int format) : layout_(format) {}

    /// Appends a record whose trailer states this size.
    ThumbCacheBuilder &thumbnail(std::uint32_t width, std::uint32_t height,
                                 const ThumbPixels &pixels);

    /// Appends records of zeros.
    ThumbCacheBuilder &empty(int count = 1);

    const ThumbLayout &layout() const { return layout_; }

    /// The cache so far.
    const std::string &bytes() const { return bytes_; }

private:
    ThumbLayout layout_;
    std::string bytes_;
};

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_THUMB_CACHE_BUILDER_H
