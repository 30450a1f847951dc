#ifndef IOSPHOTO_TOOL_UTC_OFFSET_H
#define IOSPHOTO_TOOL_UTC_OFFSET_H

#include <string>

namespace iosphoto::tool {

/// An offset of a time zone in seconds as "+08:00". Names of zones stand for several: CST is one in
/// China and another in Chicago.
std::string utcOffset(int seconds);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_UTC_OFFSET_H
