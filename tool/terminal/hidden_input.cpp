#include "terminal/hidden_input.h"

#include "process/interruption_lock.h"
#include "text/printable.h"

#include <cerrno>
#include <fcntl.h>
#include <string_view>
#include <termios.h>
#include <unistd.h>

namespace iosphoto::tool {

namespace {

/// Guarded by InterruptionLock.
struct HiddenTerminal
{
    int descriptor;
    termios before;
};
std::optional<HiddenTerminal> hiddenTerminal;

/// The terminal of the person who runs the command.
class ControllingTerminal
{
public:
    ControllingTerminal() : descriptor_(open("/dev/tty", O_RDWR | O_NOCTTY | O_CLOEXEC)) {}
    ~ControllingTerminal()
    {
        if (isOpen())
            close(descriptor_);
    }
    ControllingTerminal(const ControllingTerminal &) = delete;
    ControllingTerminal &operator=(const ControllingTerminal &) = delete;

    bool isOpen() const { return descriptor_ >= 0; }
    /// Whether a question would not stop the command, as it does one in the background.
    bool isOurs() const { return isOpen() && tcgetpgrp(descriptor_) == getpgrp(); }
    int descriptor() const { return descriptor_; }

    void print(const std::string &text) const
    {
        for (std::string_view rest = text; !rest.empty();) {
            const ssize_t count = write(descriptor_, rest.data(), rest.size());
            if (count <= 0 && errno != EINTR)
                return;
            rest.remove_prefix(count > 0 ? static_cast<std::size_t>(count) : 0);
        }
    }

    /// Up to the end of the line; nothing when the input ended before.
    std::optional<Secret> readLine() const
    {
        constexpr std::size_t longest = 4096; // that a terminal takes as a line
        Secret line(longest);
        for (std::size_t size = 0; size < longest;) {
            const ssize_t count = read(descriptor_, line.data() + size, 1);
            if (count < 0 && errno == EINTR)
                continue;
            if (count <= 0)
                return std::nullopt;
            if (line.data()[size] == '\n')
                return Secret({reinterpret_cast<const char *>(line.data()), size});
            ++size;
        }
        return std::nullopt;
    }

private:
    int descriptor_;
};

/// Hides what is typed while it lives. The command cannot be suspended meanwhile, as the shell
/// would show it again.
class Hiding
{
public:
    explicit Hiding(const ControllingTerminal &terminal)
    {
        const InterruptionLock lock;
        termios mode = {};
        if (tcgetattr(terminal.descriptor(), &mode) != 0)
            return;
        hiddenTerminal = {terminal.descriptor(), mode};
        mode.c_lflag &= ~static_cast<tcflag_t>(ECHO | ECHOE | ECHOK | ECHONL);
        mode.c_lflag |= ICANON | ISIG;
        mode.c_cc[VSUSP] = _POSIX_VDISABLE;
        tcsetattr(terminal.descriptor(), TCSAFLUSH, &mode);
    }
    ~Hiding()
    {
        const InterruptionLock lock;
        stopHidingInput();
    }
    Hiding(const Hiding &) = delete;
    Hiding &operator=(const Hiding &) = delete;
};

} // namespace

std::optional<Secret> askForSecret(const std::string &question)
{
    const ControllingTerminal terminal;
    if (!terminal.isOurs())
        return std::nullopt;
    std::optional<Secret> answer;
    {
        const Hiding hiding(terminal);
        terminal.print(printable(question));
        answer = terminal.readLine();
    }
    terminal.print("\n"); // that of the person was hidden too
    return answer;
}

void stopHidingInput()
{
    const InterruptionLock lock;
    if (!hiddenTerminal)
        return;
    tcsetattr(hiddenTerminal->descriptor, TCSANOW, &hiddenTerminal->before);
    hiddenTerminal.reset();
}

} // namespace iosphoto::tool
