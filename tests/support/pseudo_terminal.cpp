#include "support/pseudo_terminal.h"

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>
#include <utility>

namespace iosphoto::test {

namespace {

/// Reads while programs write: a terminal holds little.
std::string readAll(int master)
{
    std::string text;
    std::array<char, 4096> part = {};
    for (;;) { // ends with an error or with 0 bytes, as systems differ
        const ssize_t count = read(master, part.data(), part.size());
        if (count <= 0)
            return text;
        text.append(part.data(), static_cast<std::size_t>(count));
    }
}

} // namespace

PseudoTerminal::PseudoTerminal(int columns) : master_(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC))
{
    grantpt(master_);
    unlockpt(master_);
    slave_ = open(ptsname(master_), O_RDWR | O_NOCTTY | O_CLOEXEC);
    termios settings = {};
    tcgetattr(slave_, &settings);
    settings.c_oflag &= ~static_cast<tcflag_t>(OPOST); // "\n" stays as it is
    tcsetattr(slave_, TCSANOW, &settings);
    winsize size = {};
    size.ws_col = static_cast<unsigned short>(columns);
    ioctl(slave_, TIOCSWINSZ, &size);
    text_ = std::async(std::launch::async, readAll, master_);
}

PseudoTerminal::~PseudoTerminal()
{
    if (text_.valid())
        text();
    close(master_);
}

std::string PseudoTerminal::text()
{
    close(std::exchange(slave_, -1));
    return text_.get();
}

} // namespace iosphoto::test
