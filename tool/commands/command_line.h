#ifndef IOSPHOTO_TOOL_COMMAND_LINE_H
#define IOSPHOTO_TOOL_COMMAND_LINE_H

#include <CLI/CLI.hpp>

#include <string>
#include <vector>

namespace iosphoto::tool {

/// A command line with what people leave out: nothing at all asks for help, `help COMMAND` for that
/// of a command, and a source without a command for `info`.
/// @param arguments  without the name of the program
std::vector<std::string> completed(const CLI::App &app, std::vector<std::string> arguments);

/// The names of the commands, and what asks for help.
std::vector<std::string> commandNames(const CLI::App &app);

/// The paragraph of the help that tells of this.
std::string shortForms();

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_COMMAND_LINE_H
