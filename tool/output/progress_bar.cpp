#include "output/progress_bar.h"

#include "output/interruption_lock.h"

#include <algorithm>
#include <iostream>
#include <sys/ioctl.h>
#include <unistd.h>
#include <utility>

namespace iosphoto::tool {

namespace {

constexpr std::chrono::milliseconds patience{500};
constexpr std::chrono::milliseconds betweenShows{100};
constexpr const char *clearLine = "\r\x1b[K";

std::size_t terminalColumns()
{
    constexpr std::size_t usual = 80;
    winsize size = {};
    return ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : usual;
}

} // namespace

std::string progressLine(const std::string &doing, int done, int total, std::size_t columns)
{
    constexpr std::size_t mostCells = 20;
    constexpr std::size_t fewestCells = 4;
    const std::string counts = std::to_string(done) + "/" + std::to_string(total);
    const std::size_t others = doing.size() + counts.size() + 5; // gaps, brackets, last column
    if (columns < others + fewestCells)
        return counts;
    const std::size_t cells = std::min(mostCells, columns - others);
    const std::size_t full =
        cells * static_cast<std::size_t>(done) / static_cast<std::size_t>(total);
    return doing + " [" + std::string(full, '#') + std::string(cells - full, ' ') + "] " + counts;
}

ProgressBar::ProgressBar(std::string doing, int total)
    : doing_(std::move(doing)), total_(total), isOnTerminal_(isatty(STDERR_FILENO) == 1),
      nextShow_(Clock::now() + patience)
{
}

ProgressBar::~ProgressBar()
{
    const InterruptionLock lock;
    if (isShown_)
        std::cerr << clearLine << std::flush;
}

void ProgressBar::show(int done)
{
    if (!isOnTerminal_ || Clock::now() < nextShow_)
        return;
    const InterruptionLock lock;
    std::cerr << clearLine + progressLine(doing_, done, total_, terminalColumns()) << std::flush;
    nextShow_ = Clock::now() + betweenShows;
    isShown_ = true;
}

void clearProgress()
{
    if (isatty(STDERR_FILENO) == 1)
        std::cerr << clearLine << std::flush;
}

} // namespace iosphoto::tool
