#ifndef IOSPHOTO_TESTS_DAMAGE_H
#define IOSPHOTO_TESTS_DAMAGE_H

#include "support/library_builder.h"

#include <string>

namespace iosphoto::test {

/// Closes the library and makes garbage of the first page of a table.
void damageTable(LibraryBuilder &library, const std::string &table);

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_DAMAGE_H
