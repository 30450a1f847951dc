#ifndef IOSPHOTO_TOOL_WITH_EVIDENCE_H
#define IOSPHOTO_TOOL_WITH_EVIDENCE_H

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// To be told of the files that a command is about to read.
using TakeInputs = std::function<void(const std::vector<std::filesystem::path> &)>;

/// Runs a command and returns its exit status. Where a file for it is named, writes evidence, of a
/// command that fails as well.
int withEvidence(const std::optional<std::string> &file,
                 const std::vector<std::string> &commandLine,
                 const std::function<int(const TakeInputs &)> &command);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_WITH_EVIDENCE_H
