#ifndef IOSPHOTO_BENCH_CASE_RESULT_H
#define IOSPHOTO_BENCH_CASE_RESULT_H

#include "cases.h"
#include "measure.h"
#include "memory.h"
#include "tool_cost.h"

#include <cstddef>
#include <optional>
#include <vector>

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
    std::vector<ToolCost> tool; ///< none where it was not measured
};

} // namespace iosphoto::bench

#endif // IOSPHOTO_BENCH_CASE_RESULT_H
