#ifndef IOSPHOTO_TOOL_NUMBERS_H
#define IOSPHOTO_TOOL_NUMBERS_H

#include "text/translate.h"

#include <cstdint>
#include <string>

namespace iosphoto::tool {

/// A number as "28,828".
std::string grouped(std::int64_t number);

/// translate() with a number of things at {0}: `one` if there is one ("{0} record"), else `many`
/// ("{0} records"). Further values follow at {1} and so on.
template <typename... Values>
std::string counted(std::int64_t number, const char *one, const char *many, const Values &...values)
{
    return translate(number == 1 ? one : many, grouped(number), values...);
}

/// A number of bytes as "45.9 MB".
std::string readableSize(std::int64_t bytes);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_NUMBERS_H
