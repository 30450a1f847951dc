#include "support/expected_bmp.h"

#include "support/little_endian.h"

namespace iosphoto::test {

namespace {

std::string bytesOf(const std::string &record, int from, int count)
{
    return record.substr(static_cast<std::size_t>(from), static_cast<std::size_t>(count));
}

int byteOf(const std::string &record, int offset)
{
    return static_cast<unsigned char>(record[static_cast<std::size_t>(offset)]);
}

} // namespace

std::string expectedHeader(int width, int height, int fileSize, int imageSize)
{
    std::string header = "BM";
    for (const int field : {fileSize, 0, 66, 40, width, height})
        header += littleEndian32(field);
    header += littleEndian(1, 2);  // planes
    header += littleEndian(16, 2); // bits per pixel
    for (const int field : {3, imageSize, 0, 0, 0, 0, 0x7C00, 0x03E0, 0x001F})
        header += littleEndian32(field);
    return header;
}

std::optional<std::string> expectedCentredBmp(const std::string &record)
{
    const int width = byteOf(record, 28816);
    const int height = byteOf(record, 28820);
    const bool isOdd = width % 2 == 1;
    const int rowBytes = isOdd ? width / 2 * 4 + 4 : width * 2;
    const int start = isOdd ? 119 - width : 120 - width;
    const int firstRow = (120 - height) / 2;
    const int size = rowBytes * height + 66;
    if (height > 120 || size > callersBuffer)
        return std::nullopt;
    std::string image = expectedHeader(width, height, size, 55112);
    for (int row = firstRow + height - 1; row >= firstRow; --row) {
        const int from = row * 240 + start;
        if (from < 0 || from + rowBytes > 28828)
            return std::nullopt;
        image += bytesOf(record, from, rowBytes);
    }
    return image;
}

std::string expectedBmp(const ThumbCase &thumbCase, const std::string &record)
{
    if (thumbCase.format == 120)
        return expectedCentredBmp(record).value();
    const int side = thumbCase.format;
    const int stride = thumbCase.layout().pixelsPerRow() * 2;
    const int rowBytes = (side + 1) / 2 * 4;
    std::string image =
        expectedHeader(side, side, thumbCase.statedFileSize, thumbCase.statedImageSize);
    for (int row = side - 1; row >= 0; --row)
        image += bytesOf(record, row * stride, rowBytes);
    return image;
}

} // namespace iosphoto::test
