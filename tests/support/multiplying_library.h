#ifndef IOSPHOTO_TESTS_MULTIPLYING_LIBRARY_H
#define IOSPHOTO_TESTS_MULTIPLYING_LIBRARY_H

#include "support/library_builder.h"

namespace iosphoto::test {

/// Lets, on the schema of iOS 18, the statements' joins make `times` times `times` rows of one
/// photo: its second table has as many rows for it, and an untitled album holds it as often.
void multiplyPhoto(LibraryBuilder &library, int times);

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_MULTIPLYING_LIBRARY_H
