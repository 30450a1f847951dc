/// The process's heap, counted where malloc is replaced (failing_malloc.cpp).
#ifndef IOSPHOTO_TESTS_HEAP_USE_H
#define IOSPHOTO_TESTS_HEAP_USE_H

namespace iosphoto::test {

/// The bytes that are allocated now, with what the allocator takes for each block.
long heapBytes();

/// The most that were allocated at a time since the last call of forgetHeapPeak().
long heapPeak();
void forgetHeapPeak();

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_HEAP_USE_H
