#ifndef IOSPHOTO_TESTS_TOOL_AT_TERMINAL_H
#define IOSPHOTO_TESTS_TOOL_AT_TERMINAL_H

#include "support/run_tool.h"

#include <memory>
#include <string>
#include <vector>

namespace iosphoto::test {

/// A run of the tool that has a terminal to ask somebody, though none of its streams is one
/// unless it is said.
class ToolAtTerminal
{
public:
    enum class Streams { InFiles, ErrorAtTerminal };
    enum class Standing { Foreground, Background };

    explicit ToolAtTerminal(const std::vector<std::string> &arguments,
                            const Environment &environment = {}, Streams streams = Streams::InFiles,
                            Standing standing = Standing::Foreground);
    ~ToolAtTerminal();
    ToolAtTerminal(const ToolAtTerminal &) = delete;
    ToolAtTerminal &operator=(const ToolAtTerminal &) = delete;

    /// Waits until the tool has shown this, or for half a minute.
    void waitFor(const std::string &text);
    /// Types text, or keys such as "\x03" for Ctrl-C.
    void type(const std::string &text) const;

    pid_t process() const { return tool_->process(); }
    /// Whether the terminal shows what is typed.
    bool showsInput() const;
    /// All that the terminal showed so far.
    const std::string &shown() const { return shown_; }

    /// Waits for its end. To be called once.
    ToolRun result() { return tool_->result(); }

private:
    int master_;
    int slave_;
    std::string shown_;
    std::unique_ptr<RunningTool> tool_;
};

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_TOOL_AT_TERMINAL_H
