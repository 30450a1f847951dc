#ifndef IOSPHOTO_BENCH_SYSTEM_MEMORY_H
#define IOSPHOTO_BENCH_SYSTEM_MEMORY_H

#include <cstddef>

namespace iosphoto::bench {

/// Takes so many bytes from the system, uses them once and returns them, so that the next program
/// finds them at hand. A virtual machine gives memory that nobody uses back to its host, and
/// getting it again is charged to whoever needs it first: up to two fifths of the time of a program
/// that lists a million photos. Throws where there is not so much.
void bringMemory(std::size_t bytes);

} // namespace iosphoto::bench

#endif // IOSPHOTO_BENCH_SYSTEM_MEMORY_H
