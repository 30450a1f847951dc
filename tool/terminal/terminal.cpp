#include "terminal/terminal.h"

#include "process/interruption_lock.h"
#include "text/printable.h"

#include <fmt/format.h>

#include <cstdlib>
#include <iostream>
#include <sys/ioctl.h>
#include <unistd.h>

namespace iosphoto::tool {

namespace {

constexpr const char *speaker = "iosphoto:";

std::string variable(const char *name)
{
    const char *const value = std::getenv(name);
    return value != nullptr ? value : "";
}

bool knowsColors(bool isTerminal, ColorChoice choice)
{
    if (choice != ColorChoice::Auto)
        return choice == ColorChoice::Always;
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

void print(const std::string &who, const std::string &text)
{
    const InterruptionLock lock;
    std::cerr << who + " " + printable(text) + "\n";
}

} // namespace

std::string inked(const std::string &text, Ink ink, const Screen &screen)
{
    return screen.isColored ? fmt::format("\x1b[{}m{}\x1b[0m", static_cast<int>(ink), text) : text;
}

Screen Terminal::screenOf(const std::ostream &stream) const
{
    if (&stream != &std::cout && &stream != &std::cerr)
        return {};
    const int descriptor = &stream == &std::cout ? STDOUT_FILENO : STDERR_FILENO;
    Screen screen;
    screen.isTerminal = isatty(descriptor) == 1;
    screen.isColored = knowsColors(screen.isTerminal, colorChoice_);
    if (screen.isTerminal)
        screen.columns = columnsOf(descriptor);
    return screen;
}

void Terminal::printInfo(const std::string &text) const
{
    if (!isQuiet_)
        print(speaker, text);
}

void Terminal::printWarning(const std::string &text) const
{
    print(inked(speaker, Ink::Yellow, screenOf(std::cerr)), text);
}

void Terminal::printError(const std::string &text) const
{
    print(inked(speaker, Ink::Red, screenOf(std::cerr)), text);
}

} // namespace iosphoto::tool
