#ifndef IOSPHOTO_FUZZ_TARGET_H
#define IOSPHOTO_FUZZ_TARGET_H

#include <cstddef>
#include <cstdint>

/// Runs the code on one input. Under the name by which libFuzzer calls it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

#endif // IOSPHOTO_FUZZ_TARGET_H
