#ifndef IOSPHOTO_TOOL_SYSTEM_ERROR_H
#define IOSPHOTO_TOOL_SYSTEM_ERROR_H

#include <string>

namespace iosphoto::tool {

/// What an error number (errno) of the system means.
std::string systemError(int number);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_SYSTEM_ERROR_H
