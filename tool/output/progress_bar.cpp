#include "output/progress_bar.h"

#include <iostream>
#include <unistd.h>
#include <utility>

namespace iosphoto::tool {

namespace {

constexpr std::chrono::milliseconds patience{500};
constexpr std::chrono::milliseconds betweenShows{100};
constexpr const char *clearLine = "\r\x1b[K";

std::string bar(int done, int total)
{
    constexpr int cells = 20; // short enough for a narrow terminal
    const auto full = static_cast<std::size_t>(cells * std::int64_t{done} / total);
    return "[" + std::string(full, '#') + std::string(cells - full, ' ') + "]";
}

} // namespace

ProgressBar::ProgressBar(std::string doing, int total)
    : doing_(std::move(doing)), total_(total), isOnTerminal_(isatty(STDERR_FILENO) == 1),
      nextShow_(Clock::now() + patience)
{
}

ProgressBar::~ProgressBar()
{
    if (isShown_)
        std::cerr << clearLine << std::flush;
}

void ProgressBar::show(int done)
{
    if (!isOnTerminal_ || Clock::now() < nextShow_)
        return;
    std::cerr << clearLine + doing_ + " " + bar(done, total_) + " " + std::to_string(done) + "/" +
                     std::to_string(total_)
              << std::flush;
    nextShow_ = Clock::now() + betweenShows;
    isShown_ = true;
}

} // namespace iosphoto::tool
