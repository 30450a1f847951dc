#include "terminal/progress_bar.h"

#include "terminal/display_width.h"

#include <algorithm>
#include <utility>

namespace iosphoto::tool {

namespace {

constexpr std::chrono::milliseconds betweenShows{100};

} // namespace

std::string progressLine(const std::string &doing, int done, int total, std::size_t columns)
{
    constexpr std::size_t mostCells = 20;
    constexpr std::size_t fewestCells = 4;
    const std::string counts = std::to_string(done) + "/" + std::to_string(total);
    const std::size_t others = displayWidth(doing) + counts.size() + 4; // gaps, brackets
    if (columns < others + fewestCells)
        return counts;
    const std::size_t cells = std::min(mostCells, columns - others);
    const std::size_t full =
        cells * static_cast<std::size_t>(done) / static_cast<std::size_t>(total);
    return doing + " [" + std::string(full, '#') + std::string(cells - full, ' ') + "] " + counts;
}

ProgressBar::ProgressBar(const Terminal &terminal, std::string doing, int total,
                         Clock::duration patience)
    : doing_(std::move(doing)), total_(total), line_(terminal), nextShow_(Clock::now() + patience)
{
}

void ProgressBar::show(int done)
{
    if (!line_.isSeen() || Clock::now() < nextShow_)
        return;
    line_.show(progressLine(doing_, done, total_, line_.columns()));
    nextShow_ = Clock::now() + betweenShows;
}

} // namespace iosphoto::tool
