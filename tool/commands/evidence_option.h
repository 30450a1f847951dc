#ifndef IOSPHOTO_TOOL_EVIDENCE_OPTION_H
#define IOSPHOTO_TOOL_EVIDENCE_OPTION_H

#include <CLI/CLI.hpp>

#include <optional>
#include <string>

namespace iosphoto::tool {

/// Adds --evidence, which every command has.
void addEvidenceOption(CLI::App &command, std::optional<std::string> &file);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_EVIDENCE_OPTION_H
