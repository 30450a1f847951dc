#ifndef IOSPHOTO_TOOL_GENERAL_OPTIONS_H
#define IOSPHOTO_TOOL_GENERAL_OPTIONS_H

#include "terminal/terminal.h"

#include <CLI/CLI.hpp>

#include <optional>
#include <string>

namespace iosphoto::tool {

/// Obeys --lang and --color, wherever they stand in the command line: before the parser is made,
/// since its texts depend on them. Throws Failure when a value is none of theirs.
void obeyLookOptions(Terminal &terminal, int argumentCount, char **arguments);

/// Adds the options that every command takes to the tool and to all commands that it has, and lets
/// the parser speak the language of the rest.
/// @param version  what --version prints
/// @param terminal  has to outlive the parser
void addGeneralOptions(CLI::App &app, Terminal &terminal, const std::string &version);

/// Adds --evidence, which every command has.
void addEvidenceOption(CLI::App &command, std::optional<std::string> &file);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_GENERAL_OPTIONS_H
