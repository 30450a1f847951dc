#ifndef IOSPHOTO_TESTS_NEXT_CALL_H
#define IOSPHOTO_TESTS_NEXT_CALL_H

#include <dlfcn.h>

namespace iosphoto::test {

/// The function of the system that one of the tests stands in for.
template <typename Function>
Function *nextCall(const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_NEXT_CALL_H
