#include "ithmb/ithmb.h"
#include "ithmb/thumb_formats.h"
#include "ithmb/wrapping.h"

#include <QtEndian>

#include <algorithm>

using namespace iosphoto;

namespace {

constexpr int probeSize = 12;

bool isPlausibleSide(quint32 pixels)
{
    return pixels >= 1 && pixels <= 254;
}

} // namespace

bool detect_type(int endOffset, ifile &file)
{
    char probe[probeSize];
    if (file.seekg(wrappingSum(endOffset, -probeSize)) != 0 || !file.read(probe, probeSize))
        return false;
    return isPlausibleSide(qFromLittleEndian<quint32>(probe)) &&
           isPlausibleSide(qFromLittleEndian<quint32>(probe + 4)) &&
           qFromLittleEndian<quint32>(probe + 8) == 0;
}

int detect_ithmb_size(ifile &file, int index)
{
    const int next = wrappingSum(index, 1);
    // The last format that fits counts, so the search starts at the end.
    const auto found =
        std::find_if(thumbFormats.rbegin(), thumbFormats.rend(), [&](const ThumbFormat &format) {
            return detect_type(wrappingProduct(next, format.recordSize), file);
        });
    return found != thumbFormats.rend() ? found->code : 0;
}
