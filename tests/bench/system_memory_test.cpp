#include "system_memory.h"

#include "process_memory.h"

#include <gtest/gtest.h>

using namespace iosphoto::bench;

#ifdef __linux__

TEST(SystemMemory, IsUsedOnceAndReturned)
{
    constexpr std::size_t megabyte = 1 << 20;
    forgetPeak();
    const double before = residentBytes();
    bringMemory(64 * megabyte);
    EXPECT_GT(peakBytes() - before, 60.0 * megabyte);
    EXPECT_LT(residentBytes() - before, 30.0 * megabyte);
}

#endif
