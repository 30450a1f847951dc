#include "ithmb/bmp_header.h"

#include <QtEndian>

namespace iosphoto {

namespace {

/// Writes fields one behind the other.
class FieldWriter
{
public:
    explicit FieldWriter(char *out) : out_(out) {}

    void put16(quint16 value) { put(value); }
    void put32(quint32 value) { put(value); }
    void put32(int value) { put(static_cast<quint32>(value)); }

private:
    template <typename Value>
    void put(Value value)
    {
        qToLittleEndian(value, out_);
        out_ += sizeof value;
    }

    char *out_;
};

void putFileHeader(const BmpHeader &header, FieldWriter &fields)
{
    constexpr quint16 signature = 'B' | 'M' << 8;
    fields.put16(signature);
    fields.put32(header.fileSize);
    fields.put32(0);             // reserved
    fields.put32(bmpHeaderSize); // where the pixels start
}

void putInformationHeader(const BmpHeader &header, FieldWriter &fields)
{
    constexpr int informationHeaderSize = 40;
    constexpr quint16 planes = 1;
    constexpr quint16 bitsPerPixel = 16;
    constexpr int bitFields = 3;
    fields.put32(informationHeaderSize);
    fields.put32(header.width);
    fields.put32(header.height);
    fields.put16(planes);
    fields.put16(bitsPerPixel);
    fields.put32(bitFields);
    fields.put32(header.imageSize);
    fields.put32(0); // horizontal resolution: unknown
    fields.put32(0); // vertical resolution: unknown
    fields.put32(0); // colours used: there is no palette
    fields.put32(0); // important colours: all
}

void putColourMasks(FieldWriter &fields)
{
    fields.put32(0x7C00);
    fields.put32(0x03E0);
    fields.put32(0x001F);
}

} // namespace

void writeBmpHeader(const BmpHeader &header, char *out)
{
    FieldWriter fields(out);
    putFileHeader(header, fields);
    putInformationHeader(header, fields);
    putColourMasks(fields);
}

} // namespace iosphoto
