#include "thumbnails/cache_format.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace iosphoto::tool {

namespace {

constexpr int probedBytes = 12; ///< at the start and at the end of a record

struct Fit
{
    int plausible = 0;
    int damaged = 0;
};

/// Looks at the first records that are not empty; a large file need not be read as a whole.
Fit fitOf(ifile &file, const ThumbFormat &format)
{
    constexpr int enough = 1000;
    Fit fit;
    const int count = recordCount(file, format);
    for (int index = 0; index < count && fit.plausible + fit.damaged < enough; ++index) {
        const RecordState state = recordState(file, format, index);
        fit.plausible += state == RecordState::Plausible ? 1 : 0;
        fit.damaged += state == RecordState::Damaged ? 1 : 0;
    }
    return fit;
}

} // namespace

bool isZero(ifile &file, long offset, int count)
{
    std::vector<char> bytes(static_cast<std::size_t>(count));
    return file.seekg(offset) == 0 && file.read(bytes.data(), count) &&
           std::all_of(bytes.begin(), bytes.end(), [](char byte) { return byte == 0; });
}

RecordState recordState(ifile &file, const ThumbFormat &format, int index)
{
    const int start = index * format.recordSize;
    const int end = start + format.recordSize;
    if (detect_type(end, file))
        return RecordState::Plausible;
    return isZero(file, start, probedBytes) && isZero(file, end - probedBytes, probedBytes)
               ? RecordState::Empty
               : RecordState::Damaged;
}

int recordCount(ifile &file, const ThumbFormat &format)
{
    const long reach = std::min<long>(file.getlength(), std::numeric_limits<int>::max());
    return static_cast<int>(reach / format.recordSize);
}

const ThumbFormat *findFormat(ifile &file)
{
    const ThumbFormat *found = nullptr;
    int most = 1;
    for (const ThumbFormat &format : thumbFormats) {
        const Fit fit = fitOf(file, format);
        if (fit.plausible >= std::max(most, fit.damaged)) {
            most = fit.plausible;
            found = &format;
        }
    }
    return found;
}

} // namespace iosphoto::tool
