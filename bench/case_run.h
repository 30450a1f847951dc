#ifndef IOSPHOTO_BENCH_CASE_RUN_H
#define IOSPHOTO_BENCH_CASE_RUN_H

#include "case_result.h"

namespace iosphoto::bench {

/// Measures a case on its file in a folder.
CaseResult runCase(const std::filesystem::path &folder, const Case &wanted, int rounds);

/// Runs the library alone on the case's file in a folder, once, for a profiler.
void runLibraryOnly(const std::filesystem::path &folder, const Case &wanted);

} // namespace iosphoto::bench

#endif // IOSPHOTO_BENCH_CASE_RUN_H
