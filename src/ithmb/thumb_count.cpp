#include "ithmb/ithmb.h"
#include "ithmb/thumb_formats.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>

namespace {

constexpr int emptyRunAtEnd = 17;

/// Whether a record that starts at `offset` has content. Bytes beyond the end of the file are 0.
bool hasContent(ifile &file, std::int64_t offset)
{
    std::array<char, iosphoto::recordHeadSize> head = {};
    if (file.seekg(static_cast<long>(offset)) == 0)
        file.read(head.data(), static_cast<int>(head.size()));
    return std::any_of(head.begin(), head.end(), [](char byte) { return byte != 0; });
}

} // namespace

int estimate_count(int recordSize, ifile &file, int &lastIndex)
{
    int count = 0;
    int index = 0;
    int emptyRun = 0;
    while (emptyRun < emptyRunAtEnd && index < std::numeric_limits<int>::max()) {
        ++index;
        if (recordSize > 0 && hasContent(file, std::int64_t{index} * recordSize)) {
            ++count;
            emptyRun = 0;
        } else {
            ++emptyRun;
        }
    }
    lastIndex = index;
    return count;
}

int get_bmp_count(char const *path, int &lastIndex)
{
    constexpr int probedRecord = 2;
    ifile file(path);
    const auto *const format = iosphoto::findThumbFormat(detect_ithmb_size(file, probedRecord));
    if (format == nullptr || !format->isCounted)
        return 0;
    return estimate_count(format->recordSize, file, lastIndex);
}
