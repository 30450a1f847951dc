#ifndef IOSPHOTO_BENCH_JUDGEMENT_H
#define IOSPHOTO_BENCH_JUDGEMENT_H

#include "case_result.h"

#include <vector>

namespace iosphoto::bench {

/// Whether a result is within all goals of its case. What could not be measured counts as reached.
bool meetsGoals(const CaseResult &result);

/// The same of the tool alone.
bool toolMeetsGoals(const ToolCost &cost, const Goals &goals);

/// By how much the ratios of a group differ.
struct Flatness
{
    const char *group;
    double spread;

    bool isFlat() const { return spread <= flat; }
};

/// Of the groups of which all cases ran.
std::vector<Flatness> flatness(const std::vector<CaseResult> &results);

/// Whether all goals are met, that all groups are flat included.
bool meetAllGoals(const std::vector<CaseResult> &results);

/// What the benchmark ends with: 1 where it is strict and a goal is missed, else 0.
int exitStatus(const std::vector<CaseResult> &results, bool isStrict);

} // namespace iosphoto::bench

#endif // IOSPHOTO_BENCH_JUDGEMENT_H
