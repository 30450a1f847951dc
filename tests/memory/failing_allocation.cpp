#include "memory/failing_allocation.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

constexpr long never = 0;

std::atomic<long> live{0};
std::atomic<long> untilFailure{never};
std::atomic<bool> failed{false};

void *allocate(std::size_t size) noexcept
{
    if (untilFailure != never && --untilFailure == never) {
        failed = true;
        return nullptr;
    }
    void *const block = std::malloc(size != 0 ? size : 1);
    if (block != nullptr)
        ++live;
    return block;
}

void *allocateOrThrow(std::size_t size)
{
    void *const block = allocate(size);
    if (block == nullptr)
        throw std::bad_alloc();
    return block;
}

void release(void *block) noexcept
{
    if (block == nullptr)
        return;
    --live;
    std::free(block);
}

} // namespace

// All but the forms for over-aligned types, which nothing here has: a sanitizer's own forms do not
// go together with these.
void *operator new(std::size_t size)
{
    return allocateOrThrow(size);
}

void *operator new[](std::size_t size)
{
    return allocateOrThrow(size);
}

void *operator new(std::size_t size, const std::nothrow_t & /*tag*/) noexcept
{
    return allocate(size);
}

void *operator new[](std::size_t size, const std::nothrow_t & /*tag*/) noexcept
{
    return allocate(size);
}

void operator delete(void *block) noexcept
{
    release(block);
}

void operator delete[](void *block) noexcept
{
    release(block);
}

void operator delete(void *block, std::size_t /*size*/) noexcept
{
    release(block);
}

void operator delete[](void *block, std::size_t /*size*/) noexcept
{
    release(block);
}

void operator delete(void *block, const std::nothrow_t & /*tag*/) noexcept
{
    release(block);
}

void operator delete[](void *block, const std::nothrow_t & /*tag*/) noexcept
{
    release(block);
}

namespace iosphoto::test {

long liveAllocations()
{
    return live;
}

FailingAllocation::FailingAllocation(long number)
{
    failed = false;
    untilFailure = number;
}

FailingAllocation::~FailingAllocation()
{
    untilFailure = never;
}

bool FailingAllocation::hasFailed() const
{
    return failed;
}

} // namespace iosphoto::test
