/// Images as they are to come out of the decoders, worked out without the library.
#ifndef IOSPHOTO_TESTS_EXPECTED_BMP_H
#define IOSPHOTO_TESTS_EXPECTED_BMP_H

#include "support/thumb_case.h"

#include <optional>
#include <string>

namespace iosphoto::test {

std::string expectedHeader(int width, int height, int fileSize, int imageSize);

/// The image of a complete record of format 120; nothing where it has no decodable picture.
std::optional<std::string> expectedCentredBmp(const std::string &record);

/// The image of a complete record of any format, decodable if it is one of format 120.
std::string expectedBmp(const ThumbCase &thumbCase, const std::string &record);

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_EXPECTED_BMP_H
