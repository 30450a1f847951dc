#ifndef IOSPHOTO_TESTS_GUARDED_BUFFER_H
#define IOSPHOTO_TESTS_GUARDED_BUFFER_H

#include <cstddef>
#include <string_view>

namespace iosphoto::test {

/// The page that a GuardedBuffer touches.
enum class Guard { InFront, Behind };

/// Memory between two pages that may not be touched: an access beside it ends the process. It lies
/// right beside one of the two.
class GuardedBuffer
{
public:
    static constexpr char fill = '\xA5'; ///< what it holds at first

    GuardedBuffer(std::size_t size, Guard guard);
    ~GuardedBuffer();
    GuardedBuffer(const GuardedBuffer &) = delete;
    GuardedBuffer &operator=(const GuardedBuffer &) = delete;

    char *data() { return data_; }
    char *end() { return data_ + size_; }
    std::string_view bytes() const { return {data_, size_}; }

private:
    std::size_t size_;
    std::size_t mappedSize_;
    char *mapped_;
    char *data_;
};

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_GUARDED_BUFFER_H
