#ifndef IOSPHOTO_TOOL_PICTURE_H
#define IOSPHOTO_TOOL_PICTURE_H

#include <QByteArray>
#include <QImage>

namespace iosphoto::tool {

/// The picture of an image that the library decoded. Not left to a reader of BMP files: the sizes
/// in some headers are wrong on purpose.
QImage pictureOf(const QByteArray &bmp);

/// A picture as a PNG file.
QByteArray asPng(const QImage &picture);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PICTURE_H
