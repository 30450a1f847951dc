#include "support/tool_at_terminal.h"

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

namespace iosphoto::test {

namespace {

/// Lets another process have the terminal, as the shell does while a command is in the background.
/// It goes when its leader, this process, does.
void giveAway(int terminal)
{
    const pid_t other = fork();
    if (other == 0) {
        pause();
        _exit(0);
    }
    setpgid(other, other);
    tcsetpgrp(terminal, other);
}

} // namespace

ToolAtTerminal::ToolAtTerminal(const std::vector<std::string> &arguments,
                               const Environment &environment, Streams streams, Standing standing)
    : master_(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC))
{
    grantpt(master_);
    unlockpt(master_);
    slave_ = open(ptsname(master_), O_RDWR | O_NOCTTY | O_CLOEXEC);
    const auto takeTerminal = [&] {
        ioctl(slave_, TIOCSCTTY, 0);
        if (streams == Streams::ErrorAtTerminal)
            dup2(slave_, STDERR_FILENO);
        if (standing == Standing::Background)
            giveAway(slave_);
    };
    tool_ = std::make_unique<RunningTool>(arguments, environment, takeTerminal);
}

ToolAtTerminal::~ToolAtTerminal()
{
    tool_.reset();
    close(slave_);
    close(master_);
}

void ToolAtTerminal::waitFor(const std::string &text)
{
    constexpr int patience = 30'000; // milliseconds
    std::array<char, 256> part = {};
    while (shown_.find(text) == std::string::npos) {
        pollfd ready = {master_, POLLIN, 0};
        if (poll(&ready, 1, patience) <= 0)
            return;
        const ssize_t count = read(master_, part.data(), part.size());
        if (count <= 0)
            return;
        shown_.append(part.data(), static_cast<std::size_t>(count));
    }
}

void ToolAtTerminal::type(const std::string &text) const
{
    (void)!write(master_, text.data(), text.size());
}

bool ToolAtTerminal::showsInput() const
{
    termios settings = {};
    tcgetattr(slave_, &settings);
    return (settings.c_lflag & ECHO) != 0;
}

} // namespace iosphoto::test
