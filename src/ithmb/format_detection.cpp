#include "ithmb/ithmb.h"
#include "ithmb/thumb_formats.h"
#include "ithmb/thumb_trailer.h"
#include "ithmb/wrapping.h"

#include <algorithm>

using namespace iosphoto;

bool detect_type(int endOffset, ifile &file)
{
    return readStatedSize(file, endOffset).has_value();
}

int detect_ithmb_size(ifile &file, int index)
{
    const int next = wrappingSum(index, 1);
    // The last format that matches counts, so the search starts at the end.
    const auto found =
        std::find_if(thumbFormats.rbegin(), thumbFormats.rend(), [&](const ThumbFormat &format) {
            return detect_type(wrappingProduct(next, format.recordSize), file);
        });
    return found != thumbFormats.rend() ? found->code : 0;
}
