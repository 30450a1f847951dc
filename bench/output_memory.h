#ifndef IOSPHOTO_BENCH_OUTPUT_MEMORY_H
#define IOSPHOTO_BENCH_OUTPUT_MEMORY_H

#include <filesystem>
#include <optional>
#include <ostream>
#include <string>

namespace iosphoto::bench {

/// The memory that the tool's writing of all photos takes over having read them, in bytes at the
/// peak. Measured in a process of its own; nothing where the system does not tell.
/// @param format  "jsonl" or "csv"
std::optional<double> outputBytes(const std::filesystem::path &database, const std::string &format);

/// What the process of its own does: lists the photos to nowhere and prints the number.
void printOutputBytes(const std::filesystem::path &database, const std::string &format,
                      std::ostream &out);

/// The option that makes a process of it.
constexpr char outputOption[] = "--output-bytes-of";

} // namespace iosphoto::bench

#endif // IOSPHOTO_BENCH_OUTPUT_MEMORY_H
