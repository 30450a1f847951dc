#include "ithmb/thumb_trailer.h"

#include "ithmb/wrapping.h"

#include <QtEndian>

namespace iosphoto {

namespace {

bool isPlausibleSide(std::uint32_t pixels)
{
    return pixels >= 1 && pixels <= 254;
}

} // namespace

std::optional<StatedSize> readStatedSize(ifile &file, int recordEnd)
{
    char words[trailerWordsSize];
    if (file.seekg(wrappingSum(recordEnd, -trailerWordsSize)) != 0 ||
        !file.read(words, trailerWordsSize))
        return std::nullopt;
    const auto wordAt = [&](int offset) {
        return qFromLittleEndian<quint32>(words + (offset - trailer_offset::width));
    };
    const StatedSize size = {wordAt(trailer_offset::width), wordAt(trailer_offset::height)};
    if (!isPlausibleSide(size.width) || !isPlausibleSide(size.height) ||
        wordAt(trailer_offset::zero) != 0)
        return std::nullopt;
    return size;
}

} // namespace iosphoto
