#ifndef IOSPHOTO_BENCH_RESULT_TABLE_H
#define IOSPHOTO_BENCH_RESULT_TABLE_H

#include "case_result.h"

#include <ostream>
#include <vector>

namespace iosphoto::bench {

/// Prints a row for each case, and below how flat the groups are.
void printResults(const std::vector<CaseResult> &results, std::ostream &out);

} // namespace iosphoto::bench

#endif // IOSPHOTO_BENCH_RESULT_TABLE_H
