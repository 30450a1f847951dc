/// What somebody would write without the library.
#ifndef IOSPHOTO_BENCH_OTHER_WAYS_H
#define IOSPHOTO_BENCH_OTHER_WAYS_H

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace iosphoto::bench {

using Statements = std::vector<std::string>;

/// Processor time of the statements in Python, all rows fetched, in seconds; nothing without a
/// python3.
std::optional<double> secondsInPython(const std::filesystem::path &database,
                                      const Statements &statements);

/// The same of SQLite's shell, which writes the rows as JSON.
std::optional<double> secondsInShell(const std::filesystem::path &database,
                                     const Statements &statements);

} // namespace iosphoto::bench

#endif // IOSPHOTO_BENCH_OTHER_WAYS_H
