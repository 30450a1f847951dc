#ifndef IOSPHOTO_TESTS_RUN_TOOL_H
#define IOSPHOTO_TESTS_RUN_TOOL_H

#include "support/temporary_folder.h"

#include <functional>
#include <map>
#include <optional>
#include <ostream>
#include <string>
#include <sys/types.h>
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

/// Runs the tool with this coming through a pipe.
ToolRun runToolOnPipe(const std::string &input, const std::vector<std::string> &arguments,
                      const Environment &environment = {});

/// Runs the tool with its input redirected from a file or folder.
ToolRun runToolFrom(const std::string &file, const std::vector<std::string> &arguments);

/// A run of the tool that goes on meanwhile. Ctrl-C and the like have their usual effect on it,
/// whatever they have on this process.
class RunningTool
{
public:
    explicit RunningTool(
        const std::vector<std::string> &arguments, const Environment &environment = {},
        const std::function<void()> &prepare = [] {});
    RunningTool(const RunningTool &) = delete;
    RunningTool &operator=(const RunningTool &) = delete;
    ~RunningTool();

    void send(int signal) const;
    pid_t process() const { return process_; }

    /// Waits for its end. To be called once.
    ToolRun result();

private:
    TemporaryFolder folder_;
    pid_t process_;
};

/// Runs the tool with its input being a terminal.
ToolRun runToolFromTerminal(const std::vector<std::string> &arguments);

/// Runs the tool with stdout and stderr on a terminal each, which knows colours unless the
/// variables say otherwise.
ToolRun runToolOnTerminal(const std::vector<std::string> &arguments, int columns,
                          const Environment &environment = {});

/// Runs the tool as a user without special rights; nothing where this process may not do that, or
/// the other user may not run the tool.
std::optional<ToolRun> runToolAsPlainUser(const std::vector<std::string> &arguments);

/// Runs the tool on a disk that has no room for a file of more than `bytes`.
ToolRun runToolOnFullDisk(const std::vector<std::string> &arguments, std::size_t bytes);

/// Runs the tool with its output going into a file that is there.
ToolRun runToolInto(const std::string &file, const std::vector<std::string> &arguments);

/// Runs the tool with some of the descriptors 0 to 2 closed.
ToolRun runToolWithout(const std::vector<int> &descriptors,
                       const std::vector<std::string> &arguments);

/// Runs the tool with its output going to somebody who does not read.
ToolRun runToolForNoReader(const std::vector<std::string> &arguments,
                           const Environment &environment = {});

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_RUN_TOOL_H
