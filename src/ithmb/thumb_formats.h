#ifndef IOSPHOTO_THUMB_FORMATS_H
#define IOSPHOTO_THUMB_FORMATS_H

#include "ithmb/bmp_header.h"
#include "ithmb/thumb_trailer.h"

#include <array>

namespace iosphoto {

/// A format of thumbnail caches. Sizes and offsets are bytes; rows are of 16-bit pixels, the top
/// one first.
struct ThumbFormat
{
    int code; ///< names the format: the side of its square picture, in pixels
    int recordSize;
    int pixelBytes; ///< the part of the record from its start that holds all of the picture
    int trailerOffset;
    int stride;   ///< from one row to the next
    int rowBytes; ///< of a row in the image: two bytes a pixel, made up to a multiple of four
    int rows;
    /// What the size fields of the image's header say: three formats are defined with those of
    /// another one.
    int statedFileSize;
    int statedImageSize;
    bool isCentred; ///< the thumbnail may be smaller than the picture, and only it is decoded
    bool isCounted; ///< by get_bmp_count()
};

/// All formats, in the order in which files are probed for them: the last that matches counts.
inline constexpr std::array<ThumbFormat, 7> thumbFormats = {{
    // code record pixels trailer stride row rows file size, image size, centred, counted
    {78, 12508, 12480, 12480, 160, 156, 78, 55178, 55112, false, true},
    {120, 28828, 28800, 28800, 240, 240, 120, 55178, 55112, true, true},
    {157, 50268, 50236, 50240, 320, 316, 157, 49678, 49612, false, true},
    {125, 32028, 31996, 32000, 256, 252, 125, 55178, 55112, false, false},
    {158, 50588, 50560, 50560, 320, 316, 158, 49994, 49928, false, true},
    {128, 32796, 32768, 32768, 256, 256, 128, 49994, 49928, false, false},
    {166, 55804, 55772, 55776, 336, 332, 166, 55178, 55112, false, true},
}};

constexpr int largestRecord = 55804;
constexpr int largestImage = 55178; ///< with its header; what callers' buffers hold
/// The bytes at the start of a record that are all 0 where it is empty.
constexpr int recordHeadSize = 12;

/// Whether the numbers of a format agree with each other and with the limits.
constexpr bool isConsistent(const ThumbFormat &format)
{
    return (format.rows - 1) * format.stride + format.rowBytes <= format.pixelBytes &&
           format.pixelBytes <= format.trailerOffset &&
           format.trailerOffset + trailerSize == format.recordSize &&
           format.recordSize <= largestRecord &&
           bmpHeaderSize + format.rows * format.rowBytes <= largestImage;
}

constexpr bool areConsistent()
{
    // NOLINTNEXTLINE(readability-use-anyofallof): std::all_of is not constexpr
    for (const ThumbFormat &format : thumbFormats)
        if (!isConsistent(format))
            return false;
    return true;
}

static_assert(areConsistent());

/// The format with this code; a null pointer if there is none.
constexpr const ThumbFormat *findThumbFormat(int code)
{
    for (const ThumbFormat &format : thumbFormats)
        if (format.code == code)
            return &format;
    return nullptr;
}

/// The format with a code that has one.
template <int code>
inline constexpr const ThumbFormat &thumbFormat = *findThumbFormat(code);

} // namespace iosphoto

#endif // IOSPHOTO_THUMB_FORMATS_H
