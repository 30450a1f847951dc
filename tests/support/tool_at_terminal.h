#ifndef IOSPHOTO_TESTS_TOOL_AT_TERMINAL_H
#define IOSPHOTO_TESTS_TOOL_AT_TERMINAL_H

#include "support/run_tool.h"

#include <memory>
#include <string>
#include <vector>

namespace iosphoto::test {

/// A run of the tool that has a terminal to ask somebody, though none of its streams is one.
class ToolAtTerminal
{
public:
    explicit ToolAtTerminal(const std::vector<std::string> &arguments);
    ~ToolAtTerminal();
    ToolAtTerminal(const ToolAtTerminal &) = delete;
    ToolAtTerminal &operator=(const ToolAtTerminal &) = delete;

    /// Waits until the tool has shown this, or for half a minute.
    void waitFor(const std::string &text);
    /// Types text, or keys such as "\x03" for Ctrl-C.
    void type(const std::string &text) const;

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
