#include "host_buffer.h"

#include "require.h"

#include <QtEndian>

#include <algorithm>

namespace iosphoto::fuzz {

namespace {

constexpr int capacity = 55178;
constexpr int headerSize = 66;
constexpr char untouched = '\x5A';

bool isByte(int value)
{
    return value >= 0 && value <= 255;
}

} // namespace

HostBuffer::HostBuffer() : bytes_(capacity, untouched) {}

void HostBuffer::decode(const Decoder &decoder)
{
    clear();
    decoder(bytes_.data(), size_, width_, height_);
    if (size_ != unset || width_ != unset || height_ != unset)
        requireImage();
    else
        require(isUntouchedFrom(0), "without an image the buffer is untouched");
}

void HostBuffer::clear()
{
    if (hasImage())
        std::fill_n(bytes_.begin(), size_, untouched); // the rest was found untouched
    size_ = width_ = height_ = unset;
}

bool HostBuffer::operator==(const HostBuffer &other) const
{
    return size_ == other.size_ && width_ == other.width_ && height_ == other.height_ &&
           bytes_ == other.bytes_;
}

void HostBuffer::requireImage() const
{
    require(size_ >= headerSize && size_ <= capacity, "the size is that of an image");
    require(isByte(width_) && isByte(height_), "width and height are bytes of the trailer");
    require(isUntouchedFrom(size_), "behind the image the buffer is untouched");
    require(bytes_[0] == 'B' && bytes_[1] == 'M', "an image starts with BM");
    require(headerWord(10) == headerSize, "the pixels follow the header");
    const int evenWidth = (headerWord(18) + 1) / 2 * 2;
    require(size_ == headerSize + evenWidth * 2 * headerWord(22), "all rows are there");
}

bool HostBuffer::isUntouchedFrom(int offset) const
{
    const auto begin = bytes_.begin() + offset;
    // Each byte equals the next: compared by memcmp, which no loop comes near under sanitizers.
    return begin == bytes_.end() ||
           (*begin == untouched && std::equal(begin + 1, bytes_.end(), begin));
}

int HostBuffer::headerWord(int offset) const
{
    return qFromLittleEndian<qint32>(bytes_.data() + offset);
}

} // namespace iosphoto::fuzz
