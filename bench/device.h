#ifndef IOSPHOTO_BENCH_DEVICE_H
#define IOSPHOTO_BENCH_DEVICE_H

namespace iosphoto::bench {

/// The device that all libraries are read as.
constexpr char iosVersion[] = "15.7";
constexpr char productType[] = "iPhone14,2";

} // namespace iosphoto::bench

#endif // IOSPHOTO_BENCH_DEVICE_H
