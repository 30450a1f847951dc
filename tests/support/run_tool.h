#ifndef IOSPHOTO_TESTS_RUN_TOOL_H
#define IOSPHOTO_TESTS_RUN_TOOL_H

#include <map>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace iosphoto::test {

/// What a run of the tool gave, all three together.
struct ToolRun
{
    std::string out;
    std::string error;
    int status;

    bool operator==(const ToolRun &other) const
    {
        return out == other.out && error == other.error && status == other.status;
    }
};

std::ostream &operator<<(std::ostream &stream, const ToolRun &run);

using Environment = std::map<std::string, std::string>;

/// Runs the tool with no input, in our environment with these variables set besides.
ToolRun runTool(const std::vector<std::string> &arguments, const Environment &environment = {});

/// Runs the tool with stdout and stderr on a terminal each, which knows colours unless the
/// variables say otherwise.
ToolRun runToolOnTerminal(const std::vector<std::string> &arguments, int columns,
                          const Environment &environment = {});

/// Runs the tool as a user without special rights; nothing where this process may not do that, or
/// the other user may not run the tool.
std::optional<ToolRun> runToolAsPlainUser(const std::vector<std::string> &arguments);

/// Runs the tool on a disk that has no room for a file of more than `bytes`.
ToolRun runToolOnFullDisk(const std::vector<std::string> &arguments, std::size_t bytes);

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_RUN_TOOL_H
