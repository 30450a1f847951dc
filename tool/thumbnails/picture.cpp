#include "thumbnails/picture.h"

#include "ithmb/thumb_formats.h"

#include <QBuffer>
#include <QtEndian>

#include <cstring>

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
    picture.save(&buffer, "PNG");
    return buffer.data();
}

} // namespace iosphoto::tool
