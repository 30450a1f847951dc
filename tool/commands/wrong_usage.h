#ifndef IOSPHOTO_TOOL_WRONG_USAGE_H
#define IOSPHOTO_TOOL_WRONG_USAGE_H

#include "process/failure.h"

#include <CLI/CLI.hpp>

namespace iosphoto::tool {

/// What is wrong with the command line that the parser met an error in, in the language that is
/// spoken.
Failure wrongUsage(const CLI::App &app, const CLI::ParseError &error);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_WRONG_USAGE_H
