#include "output/passing_line.h"

#include "output/display_width.h"
#include "output/interruption_lock.h"
#include "output/notice.h"
#include "output/terminal.h"

#include <iostream>

namespace iosphoto::tool {

namespace {

constexpr const char *clearLine = "\r\x1b[K";

} // namespace

PassingLine::PassingLine() : isSeen_(screenOf(std::cerr).isTerminal && !isQuiet()) {}

PassingLine::~PassingLine()
{
    const InterruptionLock lock;
    if (isShown_)
        std::cerr << clearLine << std::flush;
}

std::size_t PassingLine::columns()
{
    return screenOf(std::cerr).columns.value_or(1) - 1;
}

void PassingLine::show(const std::string &text)
{
    const InterruptionLock lock;
    std::cerr << clearLine + shortened(text, columns()) << std::flush;
    isShown_ = true;
}

void clearPassingLine()
{
    if (screenOf(std::cerr).isTerminal)
        std::cerr << clearLine << std::flush;
}

} // namespace iosphoto::tool
