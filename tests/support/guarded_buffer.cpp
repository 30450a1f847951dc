#include "support/guarded_buffer.h"

#include <cstring>
#include <stdexcept>
#include <sys/mman.h>
#include <unistd.h>

namespace iosphoto::test {

GuardedBuffer::GuardedBuffer(std::size_t size, Guard guard) : size_(size)
{
    const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    const std::size_t usable = (size + page - 1) / page * page;
    mappedSize_ = usable + 2 * page;
    void *const mapped = mmap(nullptr, mappedSize_, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (mapped == MAP_FAILED)
        throw std::runtime_error("cannot map memory");
    mapped_ = static_cast<char *>(mapped);
    data_ = mapped_ + page;
    if (usable > 0 && mprotect(data_, usable, PROT_READ | PROT_WRITE) != 0)
        throw std::runtime_error("cannot unlock memory");
    if (guard == Guard::Behind)
        data_ += usable - size;
    std::memset(data_, fill, size);
}

GuardedBuffer::~GuardedBuffer()
{
    munmap(mapped_, mappedSize_);
}

} // namespace iosphoto::test
