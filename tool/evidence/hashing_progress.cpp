#include "evidence/hashing_progress.h"

#include "language/said.h"

#include <algorithm>

namespace iosphoto::tool {

namespace fs = std::filesystem;

namespace {

/// Rounded up, and never 0.
int mebibytes(std::uint64_t bytes)
{
    constexpr std::uint64_t one = std::uint64_t{1024} * 1024;
    return static_cast<int>(std::max<std::uint64_t>(1, (bytes + one - 1) / one));
}

std::uint64_t totalSize(const std::vector<fs::path> &files)
{
    std::uint64_t total = 0;
    for (const fs::path &file : files) {
        std::error_code error;
        const std::uintmax_t size = fs::file_size(file, error);
        total += error ? 0 : size;
    }
    return total;
}

} // namespace

HashingProgress::HashingProgress(const std::vector<fs::path> &files)
    : total_(mebibytes(totalSize(files))), bar_(said("hashing (MiB)"), total_)
{
}

void HashingProgress::add(std::uint64_t bytes)
{
    done_ += bytes;
    bar_.show(std::min(mebibytes(done_), total_)); // a file may grow meanwhile
}

} // namespace iosphoto::tool
