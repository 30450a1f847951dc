#ifndef IOSPHOTO_BENCH_CASE_RESULT_H
#define IOSPHOTO_BENCH_CASE_RESULT_H

#include "cases.h"
#include "measure.h"
#include "memory.h"

#include <cstddef>
#include <optional>

namespace iosphoto::bench {

/// What one case took.
struct CaseResult
{
    const Case *of;
    std::size_t assets;
    std::size_t records; ///< photo records of the catalogue, or thumbnails
    Comparison time;
    std::optional<double> pythonRatio; ///< to the floor, as the library's
    std::optional<double> shellRatio;
    std::optional<MemoryUse> memory;
};

} // namespace iosphoto::bench

#endif // IOSPHOTO_BENCH_CASE_RESULT_H
