#include "thumbnails/picture.h"

#include "ithmb/thumb_formats.h"

#include <QBuffer>
#include <QtEndian>

#include <cstring>
#include <new>

namespace iosphoto::tool {

namespace {

constexpr int widthAt = 18;
constexpr int heightAt = 22;

int fieldAt(const QByteArray &bmp, int offset)
{
    return qFromLittleEndian<qint32>(bmp.constData() + offset);
}

} // namespace

QImage pictureOf(const QByteArray &bmp)
{
    const int width = fieldAt(bmp, widthAt);
    const int height = fieldAt(bmp, heightAt);
    const auto rowBytes = static_cast<std::size_t>((bmp.size() - bmpHeaderSize) / height);
    QImage picture(width, height, QImage::Format_RGB555);
    const char *source = bmp.constData() + bmpHeaderSize;
    for (int row = height - 1; row >= 0; --row, source += rowBytes)
        std::memcpy(picture.scanLine(row), source, rowBytes);
    return picture;
}

QByteArray asPng(const QImage &picture)
{
    QBuffer buffer;
    buffer.open(QBuffer::WriteOnly);
    if (!picture.save(&buffer, "PNG"))
        throw std::bad_alloc(); // into memory, nothing else goes wrong
    return buffer.data();
}

} // namespace iosphoto::tool
