#include "ithmb/thumb_decode.h"

#include "ithmb/bmp_header.h"
#include "ithmb/thumb_trailer.h"
#include "ithmb/wrapping.h"

#include <cstring>

namespace iosphoto {

namespace {

/// A record as its file has it; what the file lacks is 0.
struct Record
{
    char bytes[largestRecord];

    int byteAt(int offset) const { return static_cast<unsigned char>(bytes[offset]); }
};

/// Reads a record; false when it starts outside the file.
bool readRecord(const ThumbFormat &format, ifile &file, int index, Record &record)
{
    const int offset = wrappingProduct(index, format.recordSize);
    if (offset < 0 || offset > file.getlength())
        return false;
    std::memset(record.bytes, 0, static_cast<std::size_t>(format.recordSize));
    if (file.seekg(offset) == 0)
        file.read(record.bytes, format.recordSize);
    return true;
}

/// The part of a record that becomes an image, and the image's header.
struct Picture
{
    int firstByte;
    int rowBytes;
    int rows;
    BmpHeader header;

    int size() const { return bmpHeaderSize + rowBytes * rows; }
};

Picture wholePicture(const ThumbFormat &format)
{
    return {0,
            format.rowBytes,
            format.rows,
            {format.code, format.code, format.statedFileSize, format.statedImageSize}};
}

/// The thumbnail in the middle of the picture. One with an odd side lies half a pixel to the top
/// left.
Picture centredPicture(const ThumbFormat &format, int width, int height)
{
    constexpr int bytesPerPixel = 2;
    const int evenWidth = width + width % 2;
    const int firstRow = (format.rows - height) / 2;
    Picture picture = {firstRow * format.stride + format.code - evenWidth,
                       evenWidth * bytesPerPixel,
                       height,
                       {width, height, 0, format.statedImageSize}};
    picture.header.fileSize = picture.size();
    return picture;
}

/// Whether all bytes that a picture asks for lie in its record, and the image in callers' buffers.
bool isDecodable(const Picture &picture, const ThumbFormat &format)
{
    const int end = picture.firstByte + (picture.rows - 1) * format.stride + picture.rowBytes;
    return picture.rows <= format.rows && picture.firstByte >= 0 && end <= format.recordSize &&
           picture.size() <= largestImage;
}

void copyBottomUp(const Picture &picture, const ThumbFormat &format, const Record &record,
                  char *out)
{
    const auto rowBytes = static_cast<std::size_t>(picture.rowBytes);
    const char *source = record.bytes + picture.firstByte;
    out += static_cast<std::size_t>(picture.rows) * rowBytes;
    for (int row = 0; row < picture.rows; ++row, source += format.stride) {
        out -= rowBytes;
        std::memcpy(out, source, rowBytes);
    }
}

} // namespace

void decodeThumb(const ThumbFormat &format, ifile &file, int index, char *buffer, int &size,
                 int &width, int &height)
{
    Record record; // NOLINT(cppcoreguidelines-pro-type-member-init): filled or not used
    if (buffer == nullptr || !readRecord(format, file, index, record))
        return;
    const int trailerWidth = record.byteAt(format.trailerOffset + trailer_offset::width);
    const int trailerHeight = record.byteAt(format.trailerOffset + trailer_offset::height);
    const Picture picture = format.isCentred ? centredPicture(format, trailerWidth, trailerHeight)
                                             : wholePicture(format);
    if (!isDecodable(picture, format))
        return;
    writeBmpHeader(picture.header, buffer);
    copyBottomUp(picture, format, record, buffer + bmpHeaderSize);
    size = picture.size();
    width = trailerWidth;
    height = trailerHeight;
}

} // namespace iosphoto
