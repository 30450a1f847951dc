#include "measure.h"

#include <algorithm>
#include <cmath>
#include <ctime>

namespace iosphoto::bench {

namespace {

/// How often a round runs both ways round, the floor being run twice in each. This run also fills
/// the caches.
int repetitions(const Run &floor, double atLeast)
{
    constexpr double shortest = 1e-6;
    const double seconds = 2 * std::max(floor(), shortest);
    return std::max(1, static_cast<int>(std::ceil(atLeast / seconds)));
}

} // namespace

double processorSeconds()
{
    timespec time = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

Comparison compare(const Run &floor, const Run &compared, Rounds rounds)
{
    const int times = repetitions(floor, rounds.floorSeconds);
    std::vector<double> floors;
    std::vector<double> others;
    std::vector<double> ratios;
    for (int round = 0; round < rounds.count; ++round) {
        double ofFloor = 0;
        double ofCompared = 0;
        for (int i = 0; i < times; ++i) {
            ofFloor += floor();
            ofCompared += compared();
            ofCompared += compared();
            ofFloor += floor();
        }
        floors.push_back(ofFloor / (2 * times));
        others.push_back(ofCompared / (2 * times));
        ratios.push_back(ofCompared / ofFloor);
    }
    return {median(floors), median(others), median(ratios)};
}

double median(std::vector<double> values)
{
    if (values.empty())
        return 0;
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

} // namespace iosphoto::bench
