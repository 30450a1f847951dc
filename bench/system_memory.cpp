#include "system_memory.h"

#include <vector>

namespace iosphoto::bench {

void bringMemory(std::size_t bytes)
{
    constexpr std::size_t page = 4096; // or more, on some systems
    std::vector<char> memory(bytes);
    for (std::size_t i = 0; i < bytes; i += page)
        static_cast<volatile char *>(memory.data())[i] = 1; // a compiler may leave out other writes
}

} // namespace iosphoto::bench
