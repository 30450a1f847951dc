#include "memory/failing_allocation.h"

#include <atomic>
#include <cerrno>
#include <cstdlib>

namespace {

constexpr long never = 0;

std::atomic<long> untilFailure{never};
std::atomic<bool> failed{false};

} // namespace

// The sanitizers replace malloc themselves. GCC tells of them by macros, clang by features.
#ifdef __has_feature
#define SANITIZER(feature, macro) __has_feature(feature)
#else
#define SANITIZER(feature, macro) defined(macro)
#endif

#if defined(__GLIBC__) && !SANITIZER(address_sanitizer, __SANITIZE_ADDRESS__) &&                   \
    !SANITIZER(thread_sanitizer, __SANITIZE_THREAD__)

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
