#ifndef IOSPHOTO_TOOL_WRONG_USAGE_H
#define IOSPHOTO_TOOL_WRONG_USAGE_H

#include "process/failure.h"

#include <CLI/CLI.hpp>

#include <string>
#include <vector>

namespace iosphoto::tool {

/// What is wrong with the command line that the parser met an error in, in the language that is
/// spoken, and what may have been meant.
/// @param commandLine  without the name of the program
Failure wrongUsage(CLI::App &app, const std::vector<std::string> &commandLine,
                   const CLI::ParseError &error);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_WRONG_USAGE_H
