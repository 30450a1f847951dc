#ifndef IOSPHOTO_TESTS_RUN_TOOL_H
#define IOSPHOTO_TESTS_RUN_TOOL_H

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

/// Runs the tool with no input.
ToolRun runTool(const std::vector<std::string> &arguments);

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_RUN_TOOL_H
