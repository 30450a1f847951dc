#ifndef IOSPHOTO_BENCH_MEMORY_H
#define IOSPHOTO_BENCH_MEMORY_H

#include <filesystem>
#include <optional>
#include <ostream>

namespace iosphoto::bench {

/// What a catalogue costs for each of its photo records, in bytes.
struct MemoryUse
{
    double held; ///< when it is finished, by the allocator's count
    double peak; ///< while it is read, resident, over what the process had before
};

/// Reads the library in a process of its own, since memory that was used before would be used
/// again. Nothing where the system does not tell.
std::optional<MemoryUse> memoryUse(const std::filesystem::path &database);

/// What the process of its own does: reads the library and prints the two numbers.
void printMemoryUse(const std::filesystem::path &database, std::ostream &out);

/// The option that makes a process of it.
constexpr char memoryOption[] = "--memory-of";

} // namespace iosphoto::bench

#endif // IOSPHOTO_BENCH_MEMORY_H
