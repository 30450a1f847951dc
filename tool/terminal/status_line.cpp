#include "terminal/status_line.h"

#include "process/interruption_lock.h"
#include "terminal/display_width.h"

#include <iostream>

namespace iosphoto::tool {

namespace {

constexpr const char *clearLine = "\r\x1b[K";

} // namespace

StatusLine::StatusLine(const Terminal &terminal)
    : terminal_(terminal), isSeen_(terminal.screenOf(std::cerr).isTerminal && !terminal.isQuiet())
{
}

StatusLine::~StatusLine()
{
    const InterruptionLock lock;
    if (isShown_)
        std::cerr << clearLine << std::flush;
}

std::size_t StatusLine::columns() const
{
    return terminal_.screenOf(std::cerr).columns.value_or(1) - 1;
}

void StatusLine::show(const std::string &text)
{
    const InterruptionLock lock;
    std::cerr << clearLine + elided(text, columns()) << std::flush;
    isShown_ = true;
}

void clearStatusLine(const Terminal &terminal)
{
    if (terminal.screenOf(std::cerr).isTerminal)
        std::cerr << clearLine << std::flush;
}

} // namespace iosphoto::tool
