#ifndef IOSPHOTO_TESTS_NEXT_DESCRIPTOR_H
#define IOSPHOTO_TESTS_NEXT_DESCRIPTOR_H

#include <unistd.h>

namespace iosphoto::test {

/// The descriptor that the next file gets. Higher than before when one was left open.
inline int nextDescriptor()
{
    const int descriptor = dup(STDERR_FILENO);
    close(descriptor);
    return descriptor;
}

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_NEXT_DESCRIPTOR_H
