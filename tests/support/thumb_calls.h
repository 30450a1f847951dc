/// Calls of the functions that decode, and what is expected of them.
#ifndef IOSPHOTO_TESTS_THUMB_CALLS_H
#define IOSPHOTO_TESTS_THUMB_CALLS_H

#include "support/thumb_case.h"

#include <functional>
#include <ostream>
#include <string>

namespace iosphoto::test {

/// A caller's variables. No picture has the values that they start with.
struct ThumbSizes
{
    int size = -3;
    int width = -1;
    int height = -2;

    bool operator==(const ThumbSizes &other) const
    {
        return size == other.size && width == other.width && height == other.height;
    }
};

std::ostream &operator<<(std::ostream &stream, const ThumbSizes &sizes);

/// Decodes into a caller's buffer and variables.
using ThumbCall = std::function<void(char *buffer, ThumbSizes &sizes)>;

/// Calls with a buffer that holds exactly this image, and expects to get it.
void expectThumb(const ThumbCall &call, const std::string &image, int width, int height);

/// Expects the image of this record, which may lack its end, with the size that its trailer states.
void expectThumbOf(std::string record, const ThumbCase &thumbCase, const ThumbCall &call);

/// Expects that neither buffer nor variables are touched.
void expectNothing(const ThumbCall &call);

/// A call of the format's own decoder.
ThumbCall decoding(const ThumbCase &thumbCase, ifile &file, int index);

/// A function that decodes a record.
struct ThumbFunction
{
    const char *name;
    ThumbCall (*decoding)(const ThumbCase &thumbCase, const std::string &path, int index);
};

inline std::ostream &operator<<(std::ostream &stream, const ThumbFunction &function)
{
    return stream << function.name;
}

/// The format's decoder, GetBmp and ios_photo_get_thumb.
extern const ThumbFunction thumbFunctions[3];

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_THUMB_CALLS_H
