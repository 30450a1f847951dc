/// The memory of this process, where the system tells.
#ifndef IOSPHOTO_BENCH_PROCESS_MEMORY_H
#define IOSPHOTO_BENCH_PROCESS_MEMORY_H

namespace iosphoto::bench {

/// Bytes that are resident.
double residentBytes();

/// The most that were since the process began, or since forgetPeak().
double peakBytes();

void forgetPeak();

} // namespace iosphoto::bench

#endif // IOSPHOTO_BENCH_PROCESS_MEMORY_H
