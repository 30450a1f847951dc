/// The file that a case reads: a database or a thumbnail cache.
#ifndef IOSPHOTO_BENCH_CASE_FILES_H
#define IOSPHOTO_BENCH_CASE_FILES_H

#include "cases.h"

namespace iosphoto::bench {

/// Whether what the file is made of is there.
/// @param realLibraries  the folder of the real libraries, here and below
bool isAvailable(const Case &wanted, const std::filesystem::path &realLibraries);

/// Where in a folder the file lies.
std::filesystem::path subjectIn(const std::filesystem::path &folder, const Case &wanted);

/// Makes the file in a folder that has none yet.
void makeSubject(const std::filesystem::path &folder, const Case &wanted,
                 const std::filesystem::path &realLibraries);

} // namespace iosphoto::bench

#endif // IOSPHOTO_BENCH_CASE_FILES_H
