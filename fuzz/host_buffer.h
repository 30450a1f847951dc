#ifndef IOSPHOTO_FUZZ_HOST_BUFFER_H
#define IOSPHOTO_FUZZ_HOST_BUFFER_H

#include <functional>
#include <vector>

namespace iosphoto::fuzz {

/// What a host gives to a decoder: a buffer as large as the headers ask for, and three numbers.
class HostBuffer
{
public:
    using Decoder = std::function<void(char *buffer, int &size, int &width, int &height)>;

    HostBuffer();

    /// Decodes into it, and requires what every decoder promises: a whole image, or nothing.
    void decode(const Decoder &decoder);

    void clear();

    bool hasImage() const { return size_ != unset; }
    bool operator==(const HostBuffer &other) const;

private:
    static constexpr int unset = -1;

    void requireImage() const;
    bool isUntouchedFrom(int offset) const;
    int headerWord(int offset) const;

    std::vector<char> bytes_; ///< on the heap, where a byte too many is noticed
    int size_ = unset;
    int width_ = unset;
    int height_ = unset;
};

} // namespace iosphoto::fuzz

#endif // IOSPHOTO_FUZZ_HOST_BUFFER_H
