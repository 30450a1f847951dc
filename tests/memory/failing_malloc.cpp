#include "memory/failing_allocation.h"
#include "memory/heap_use.h"

#include <atomic>
#include <cerrno>
#include <cstdlib>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

constexpr long never = 0;

std::atomic<long> untilFailure{never};
std::atomic<bool> failed{false};

std::atomic<long> held{0};
std::atomic<long> peak{0};

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

long sizeOf(void *block)
{
    constexpr long header = sizeof(std::size_t);
    return block != nullptr ? static_cast<long>(malloc_usable_size(block)) + header : 0;
}

void *counted(void *block)
{
    const long now = held += sizeOf(block);
    long most = peak;
    while (now > most && !peak.compare_exchange_weak(most, now)) {
    }
    return block;
}

} // namespace

// The library's own functions under the names that it keeps for such replacements.
extern "C" {
// NOLINTBEGIN(bugprone-reserved-identifier)
void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *block, std::size_t size);
void __libc_free(void *block);
// NOLINTEND(bugprone-reserved-identifier)

void *malloc(std::size_t size)
{
    return isToFail() ? nullptr : counted(__libc_malloc(size));
}

void *calloc(std::size_t count, std::size_t size)
{
    return isToFail() ? nullptr : counted(__libc_calloc(count, size));
}

void *realloc(void *block, std::size_t size)
{
    if (isToFail())
        return nullptr;
    const long before = sizeOf(block);
    void *const moved = __libc_realloc(block, size);
    if (moved != nullptr || size == 0)
        held -= before;
    return counted(moved);
}

void free(void *block)
{
    held -= sizeOf(block);
    __libc_free(block);
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

long heapBytes()
{
    return held;
}

long heapPeak()
{
    return peak;
}

void forgetHeapPeak()
{
    peak = held.load();
}

} // namespace iosphoto::test
