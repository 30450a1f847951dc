#include "terminal/terminal.h"

#include <fmt/format.h>

#include <cstdlib>
#include <iostream>
#include <sys/ioctl.h>
#include <unistd.h>

namespace iosphoto::tool {

namespace {

ColorChoice colorChoice = ColorChoice::Auto;

std::string variable(const char *name)
{
    const char *const value = std::getenv(name);
    return value != nullptr ? value : "";
}

bool isColored(bool isTerminal)
{
    if (colorChoice != ColorChoice::Auto)
        return colorChoice == ColorChoice::Always;
    return isTerminal && variable("NO_COLOR").empty() && variable("TERM") != "dumb";
}

std::size_t columnsOf(int terminal)
{
    constexpr std::size_t usual = 80;
    constexpr long most = 100000;
    const long wished = std::strtol(variable("COLUMNS").c_str(), nullptr, 10);
    if (wished > 0 && wished <= most)
        return static_cast<std::size_t>(wished);
    winsize size = {};
    return ioctl(terminal, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : usual;
}

} // namespace

void chooseColor(ColorChoice choice)
{
    colorChoice = choice;
}

Screen screenOf(const std::ostream &stream)
{
    if (&stream != &std::cout && &stream != &std::cerr)
        return {};
    const int descriptor = &stream == &std::cout ? STDOUT_FILENO : STDERR_FILENO;
    Screen screen;
    screen.isTerminal = isatty(descriptor) == 1;
    screen.isColored = isColored(screen.isTerminal);
    if (screen.isTerminal)
        screen.columns = columnsOf(descriptor);
    return screen;
}

std::string inked(const std::string &text, Ink ink, const Screen &screen)
{
    return screen.isColored ? fmt::format("\x1b[{}m{}\x1b[0m", static_cast<int>(ink), text) : text;
}

} // namespace iosphoto::tool
