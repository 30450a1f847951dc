#ifndef IOSPHOTO_TESTS_THUMB_CASE_H
#define IOSPHOTO_TESTS_THUMB_CASE_H

#include "ithmb/ithmb.h"
#include "support/thumb_cache_builder.h"

#include <ostream>
#include <string>

namespace iosphoto::test {

/// A format of thumbnail caches: what the headers of its images state, and its decoder.
struct ThumbCase
{
    int format;
    int statedFileSize;
    int statedImageSize;
    int imageBytes; ///< of a whole picture, with its header
    void (*decode)(ifile &, int, char *, int &, int &, int &);

    ThumbLayout layout() const { return ThumbLayout(format); }
    int recordSize() const { return layout().recordSize(); }
    std::string name() const { return "Format" + std::to_string(format); }
};

inline std::ostream &operator<<(std::ostream &stream, const ThumbCase &thumbCase)
{
    return stream << thumbCase.name();
}

/// All formats, in the order in which files are probed for them.
inline constexpr ThumbCase thumbCases[] = {
    {78, 55178, 55112, 12234, get_bmp_from_ithmb_78},
    {120, 55178, 55112, 28866, get_bmp_from_ithmb_120},
    {157, 49678, 49612, 49678, get_bmp_from_ithmb_157},
    {125, 55178, 55112, 31566, get_bmp_from_ithmb_125},
    {158, 49994, 49928, 49994, get_bmp_from_ithmb_158},
    {128, 49994, 49928, 32834, get_bmp_from_ithmb_128},
    {166, 55178, 55112, 55178, get_bmp_from_ithmb_166},
};

/// What callers' buffers hold: the largest image.
inline constexpr int callersBuffer = 55178;

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_THUMB_CASE_H
