#include "system_memory.h"

#include <cstring>
#include <stdexcept>
#include <sys/mman.h>

namespace iosphoto::bench {

void bringMemory(std::size_t bytes)
{
    // Not by malloc, which may keep for itself what is returned.
    void *const memory =
        mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED)
        throw std::runtime_error("there is too little memory to measure the tool");
    std::memset(memory, 1, bytes);
    munmap(memory, bytes);
}

} // namespace iosphoto::bench
