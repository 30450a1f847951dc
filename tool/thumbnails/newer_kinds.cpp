#include "thumbnails/newer_kinds.h"

#include "ithmb/thumb_trailer.h"
#include "thumbnails/cache_format.h"

#include <algorithm>
#include <iterator>

namespace iosphoto::tool {

namespace {

constexpr NewerKind newerKinds[] = {
    {"3305.ithmb", 4124, 32, 32}, {"4132.ithmb", 16412, 64, 32}, {"4031.ithmb", 57628, 120, 32},
    {"3356.ithmb", 1052, 32, 8},  {"4133.ithmb", 4124, 64, 8},   {"4532.ithmb", 14428, 120, 8},
};

constexpr bool areConsistent()
{
    // NOLINTNEXTLINE(readability-use-anyofallof): std::all_of is not constexpr
    for (const NewerKind &kind : newerKinds)
        if (kind.recordSize != kind.side * kind.side * kind.bitsPerPixel / 8 + trailerSize)
            return false;
    return true;
}

static_assert(areConsistent());

bool isMultiple(ifile &file, int recordSize)
{
    const long length = file.getlength();
    return length > 0 && length % recordSize == 0;
}

/// Whether the thumbnail that a record's trailer states is no larger than the kind's pictures.
bool fitsInto(const NewerKind &kind, ifile &file, int index)
{
    const auto side = static_cast<std::uint32_t>(kind.side);
    const auto size = readStatedSize(file, (index + 1) * kind.recordSize);
    return size && size->width <= side && size->height <= side;
}

bool isOfKind(ifile &file, const NewerKind &kind)
{
    if (!isMultiple(file, kind.recordSize))
        return false;
    const RecordFit fit = fitOf(file, kind.recordSize);
    if (fit.plausible <= fit.damaged)
        return false;
    constexpr int enough = 1000;
    const int count = std::min(recordCount(file, kind.recordSize), enough);
    for (int index = 0; index < count; ++index)
        if (recordState(file, kind.recordSize, index) == RecordState::Plausible &&
            !fitsInto(kind, file, index))
            return false;
    return true;
}

} // namespace

std::vector<NewerKind> newerKindsOf(ifile &file, const std::filesystem::path &name)
{
    std::vector<NewerKind> kinds;
    std::copy_if(std::begin(newerKinds), std::end(newerKinds), std::back_inserter(kinds),
                 [&](const NewerKind &kind) { return isOfKind(file, kind); });
    const auto named = std::find_if(kinds.begin(), kinds.end(), [&](const NewerKind &kind) {
        return name.filename() == kind.fileName;
    });
    return named != kinds.end() ? std::vector<NewerKind>{*named} : kinds;
}

int kindsOfSize(ifile &file)
{
    const auto fits = [&](const auto &kind) { return isMultiple(file, kind.recordSize); };
    return static_cast<int>(std::count_if(thumbFormats.begin(), thumbFormats.end(), fits) +
                            std::count_if(std::begin(newerKinds), std::end(newerKinds), fits));
}

} // namespace iosphoto::tool
