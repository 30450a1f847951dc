#ifndef IOSPHOTO_BMP_HEADER_H
#define IOSPHOTO_BMP_HEADER_H

namespace iosphoto {

constexpr int bmpHeaderSize = 66; ///< bytes

/// What differs between the headers of BMP images of 16-bit pixels with 5-5-5 masks.
struct BmpHeader
{
    int width;  ///< pixels
    int height; ///< pixels; the rows are stored bottom-up
    int fileSize;
    int imageSize;
};

/// Writes a header, bmpHeaderSize bytes.
void writeBmpHeader(const BmpHeader &header, char *out);

} // namespace iosphoto

#endif // IOSPHOTO_BMP_HEADER_H
