#ifndef IOSPHOTO_FUZZ_REQUIRE_H
#define IOSPHOTO_FUZZ_REQUIRE_H

#include <cstdio>
#include <cstdlib>

namespace iosphoto::fuzz {

/// Says which promise is broken and ends the process, which counts as a crash, unless it is kept.
inline void require(bool isKept, const char *promise)
{
    if (isKept)
        return;
    std::fprintf(stderr, "broken: %s\n", promise);
    std::abort();
}

} // namespace iosphoto::fuzz

#endif // IOSPHOTO_FUZZ_REQUIRE_H
