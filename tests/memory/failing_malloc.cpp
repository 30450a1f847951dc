#include "memory/failing_allocation.h"

#include <atomic>
#include <cerrno>
#include <cstdlib>

namespace {

constexpr long never = 0;

std::atomic<long> untilFailure{never};
std::atomic<bool> failed{false};

} // namespace

// GCC tells of its sanitizers by macros, clang by features.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define SANITIZER_REPLACES_MALLOC
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define SANITIZER_REPLACES_MALLOC
#endif
#endif

#if defined(__GLIBC__) && !defined(SANITIZER_REPLACES_MALLOC)

namespace {

constexpr bool mallocIsReplaced = true;

bool isToFail()
{
    if (untilFailure == never || --untilFailure != never)
        return false;
    failed = true;
    errno = ENOMEM;
    return true;
}

} // namespace

// The library's own functions under the names that it keeps for such replacements.
extern "C" {
// NOLINTBEGIN(bugprone-reserved-identifier)
void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *block, std::size_t size);
// NOLINTEND(bugprone-reserved-identifier)

void *malloc(std::size_t size)
{
    return isToFail() ? nullptr : __libc_malloc(size);
}

void *calloc(std::size_t count, std::size_t size)
{
    return isToFail() ? nullptr : __libc_calloc(count, size);
}

void *realloc(void *block, std::size_t size)
{
    return isToFail() ? nullptr : __libc_realloc(block, size);
}
}

#else

namespace {

constexpr bool mallocIsReplaced = false;

} // namespace

#endif

namespace iosphoto::test {

FailingMalloc::FailingMalloc(long number)
{
    failed = false;
    untilFailure = number;
}

FailingMalloc::~FailingMalloc()
{
    untilFailure = never;
}

bool FailingMalloc::hasFailed() const
{
    return failed;
}

bool FailingMalloc::isPossible()
{
    return mallocIsReplaced;
}

} // namespace iosphoto::test
