#ifndef IOSPHOTO_TOOL_WITH_EVIDENCE_H
#define IOSPHOTO_TOOL_WITH_EVIDENCE_H

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// Runs a command and returns its exit status. Where a file for it is named, writes evidence, of a
/// command that fails as well.
int withEvidence(const std::optional<std::string> &file,
                 const std::vector<std::string> &commandLine, const std::function<int()> &command);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_WITH_EVIDENCE_H
