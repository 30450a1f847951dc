/// The process's `operator new`, replaced by one that counts and can be made to fail.
#ifndef IOSPHOTO_TESTS_FAILING_ALLOCATION_H
#define IOSPHOTO_TESTS_FAILING_ALLOCATION_H

namespace iosphoto::test {

/// How many blocks are allocated now.
long liveAllocations();

/// While it lives, one allocation of the process throws std::bad_alloc.
class FailingAllocation
{
public:
    /// @param number  of the allocation that fails; 1 is the next one
    explicit FailingAllocation(long number);
    ~FailingAllocation();
    FailingAllocation(const FailingAllocation &) = delete;
    FailingAllocation &operator=(const FailingAllocation &) = delete;

    bool hasFailed() const;
};

/// Makes the malloc of that number fail while it lives, whoever calls it: strings of Qt and SQLite
/// ask malloc, not operator new.
class FailingMalloc
{
public:
    explicit FailingMalloc(long number);
    ~FailingMalloc();
    FailingMalloc(const FailingMalloc &) = delete;
    FailingMalloc &operator=(const FailingMalloc &) = delete;

    bool hasFailed() const;

    /// False where malloc cannot be replaced: under a sanitizer, and without the GNU C library.
    static bool isPossible();
};

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_FAILING_ALLOCATION_H
