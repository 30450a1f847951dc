#include "thumbnails/cache_format.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace iosphoto::tool {

bool isZero(ifile &file, long offset, int count)
{
    std::vector<char> bytes(static_cast<std::size_t>(count));
    return file.seekg(offset) == 0 && file.read(bytes.data(), count) &&
           std::all_of(bytes.begin(), bytes.end(), [](char byte) { return byte == 0; });
}

RecordState recordState(ifile &file, int recordSize, int index)
{
    const int start = index * recordSize;
    const int end = start + recordSize;
    if (detect_type(end, file))
        return RecordState::Plausible;
    return isZero(file, start, recordHeadSize) &&
                   isZero(file, end - trailerWordsSize, trailerWordsSize)
               ? RecordState::Empty
               : RecordState::Damaged;
}

int recordCount(ifile &file, int recordSize)
{
    const long reach = std::min<long>(file.getlength(), std::numeric_limits<int>::max());
    return static_cast<int>(reach / recordSize);
}

RecordFit fitOf(ifile &file, int recordSize)
{
    constexpr int enough = 1000;
    RecordFit fit;
    const int count = recordCount(file, recordSize);
    for (int index = 0; index < count && fit.plausible + fit.damaged < enough; ++index) {
        const RecordState state = recordState(file, recordSize, index);
        fit.plausible += state == RecordState::Plausible ? 1 : 0;
        fit.damaged += state == RecordState::Damaged ? 1 : 0;
    }
    return fit;
}

const ThumbFormat *findFormat(ifile &file)
{
    const ThumbFormat *found = nullptr;
    int most = 1;
    for (const ThumbFormat &format : thumbFormats) {
        const RecordFit fit = fitOf(file, format.recordSize);
        if (fit.plausible >= std::max(most, fit.damaged)) {
            most = fit.plausible;
            found = &format;
        }
    }
    return found;
}

} // namespace iosphoto::tool
