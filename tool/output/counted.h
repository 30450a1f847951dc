#ifndef IOSPHOTO_TOOL_COUNTED_H
#define IOSPHOTO_TOOL_COUNTED_H

#include "language/said.h"

#include <cstdint>
#include <string>

namespace iosphoto::tool {

/// A number as "28,828".
std::string grouped(std::int64_t number);

/// said() with a number of things at {0}: `one` if there is one ("{0} record"), else `many` ("{0}
/// records"). Further values follow at {1} and so on.
template <typename... Values>
std::string counted(std::int64_t number, const char *one, const char *many, const Values &...values)
{
    return said(number == 1 ? one : many, grouped(number), values...);
}

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_COUNTED_H
