// Knows where the records of a cache and their trailers lie, which chance hardly ever hits.

#include "ithmb/thumb_formats.h"
#include "ithmb/thumb_trailer.h"

#include <QtEndian>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <random>

using namespace iosphoto;

/// Of libFuzzer: changes bytes without knowing what they are.
extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t *data, std::size_t size, std::size_t maxSize);

namespace {

class ThumbCacheMutator
{
public:
    ThumbCacheMutator(std::uint8_t *data, int size, int maxSize, unsigned seed)
        : data_(data), size_(size), maxSize_(maxSize), random_(seed)
    {
    }

    int size() const { return size_; }

    void mutate()
    {
        switch (upTo(4)) {
        case 0:
            resize();
            break;
        case 1:
        case 2:
            setTrailer();
            break;
        case 3:
            setHead();
            break;
        default:
            anyMutation();
        }
    }

private:
    int upTo(int largest)
    {
        return static_cast<int>(random_() % (static_cast<unsigned>(largest) + 1));
    }

    template <typename Values>
    auto oneOf(const Values &values)
    {
        return values[static_cast<std::size_t>(upTo(static_cast<int>(std::size(values)) - 1))];
    }

    void anyMutation()
    {
        size_ = static_cast<int>(LLVMFuzzerMutate(data_, static_cast<std::size_t>(size_),
                                                  static_cast<std::size_t>(maxSize_)));
    }

    /// To a few records of a format, more or less.
    void resize()
    {
        constexpr int deviations[] = {0, 0, 0, -28, -12, -1, 1, 4, 12};
        const int records = oneOf(thumbFormats).recordSize * upTo(5);
        const int size = std::clamp(records + oneOf(deviations), 1, maxSize_);
        if (size > size_)
            std::fill(data_ + size_, data_ + size, std::uint8_t{0});
        size_ = size;
    }

    /// Of a record in a format.
    void setTrailer()
    {
        constexpr quint32 sides[] = {0,   1,   2,   50,    77,      78,         118,       119, 120,
                                     121, 125, 128, 157,   158,     166,        200,       253, 254,
                                     255, 256, 257, 0x178, 0x10000, 0x80000000, 0xFFFFFFFF};
        constexpr quint32 lastWords[] = {0, 0, 0, 0, 1, 0x40000000, 0x80000000};
        const int recordSize = oneOf(thumbFormats).recordSize;
        const int start = recordSize * (1 + upTo(size_ / recordSize)) - trailerSize;
        put(start + trailer_offset::width, oneOf(sides));
        put(start + trailer_offset::height, oneOf(sides));
        put(start + trailer_offset::zero, oneOf(lastWords));
    }

    /// Makes the head of a record empty or not.
    void setHead()
    {
        const int recordSize = oneOf(thumbFormats).recordSize;
        const int start = recordSize * upTo(size_ / recordSize);
        const quint32 value = upTo(1) == 0 ? 0 : 0x7FFF;
        for (int offset = start; offset < start + recordHeadSize; offset += 4)
            put(offset, value);
    }

    /// Writes a word, as far as it lies in the data.
    void put(int offset, quint32 value)
    {
        if (offset >= 0 && offset <= size_ - 4)
            qToLittleEndian(value, data_ + offset);
    }

    std::uint8_t *data_;
    int size_;
    int maxSize_;
    std::minstd_rand random_;
};

} // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size,
                                               std::size_t maxSize, unsigned seed)
{
    ThumbCacheMutator mutator(data, static_cast<int>(size), static_cast<int>(maxSize), seed);
    mutator.mutate();
    return static_cast<std::size_t>(mutator.size());
}
