#ifndef IOSPHOTO_BENCH_CHILD_H
#define IOSPHOTO_BENCH_CHILD_H

#include <string>
#include <vector>

namespace iosphoto::bench {

enum class Output { Kept, Dropped };

/// What a program left when it ended.
struct ChildRun
{
    int status; ///< 127 where there is no such program
    double processorSeconds;
    std::string output; ///< where it was kept
};

/// Runs a program, looked for in the usual places, without input.
ChildRun runChild(const std::vector<std::string> &command, Output output);

} // namespace iosphoto::bench

#endif // IOSPHOTO_BENCH_CHILD_H
