#ifndef IOSPHOTO_BENCH_MEASURE_H
#define IOSPHOTO_BENCH_MEASURE_H

#include <functional>
#include <vector>

namespace iosphoto::bench {

/// Processor time that this process has used, in seconds.
double processorSeconds();

/// What a call takes of it.
template <typename Call>
double secondsOf(Call call)
{
    const double before = processorSeconds();
    call();
    return processorSeconds() - before;
}

/// One run of something: the processor time in seconds that counts, without preparing and clearing
/// up.
using Run = std::function<double()>;

/// The medians of several rounds.
struct Comparison
{
    double floorSeconds;
    double seconds; ///< of what is compared with the floor
    double ratio;   ///< of the two within one round
};

struct Rounds
{
    int count;
    /// How long the floor is to take in each. Other programs slow a machine down for moments: over
    /// so long that evens out.
    double floorSeconds = 4;
};

/// Runs both in turns, so that what slows the machine down meets both, and the first in a pair is
/// the second in the next, so that becoming slower does too.
Comparison compare(const Run &floor, const Run &compared, Rounds rounds);

/// The middle one, or the mean of the two in the middle; 0 of none.
double median(std::vector<double> values);

} // namespace iosphoto::bench

#endif // IOSPHOTO_BENCH_MEASURE_H
