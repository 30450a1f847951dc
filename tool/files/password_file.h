#ifndef IOSPHOTO_TOOL_PASSWORD_FILE_H
#define IOSPHOTO_TOOL_PASSWORD_FILE_H

#include "process/secret.h"

#include <string>

namespace iosphoto::tool {

/// The first line of a file, without the line end; "-" is standard input, of which no more than
/// that line is read. Throws Failure when it cannot be read or is empty.
Secret readPasswordFile(const std::string &file);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PASSWORD_FILE_H
