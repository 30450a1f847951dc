#ifndef IOSPHOTO_TOOL_HASHING_PROGRESS_H
#define IOSPHOTO_TOOL_HASHING_PROGRESS_H

#include "output/progress_bar.h"

#include <cstdint>
#include <filesystem>
#include <vector>

namespace iosphoto::tool {

/// How far the hashing of files is, on stderr.
class HashingProgress
{
public:
    explicit HashingProgress(const std::vector<std::filesystem::path> &files);

    /// Says that so many more bytes are hashed.
    void add(std::uint64_t bytes);

private:
    std::uint64_t done_ = 0;
    int total_; ///< MiB
    ProgressBar bar_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_HASHING_PROGRESS_H
