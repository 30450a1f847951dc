// Writes the thumbnail cache that script/demo shows: small landscapes of our own making.
// sample_thumb_cache FILE
#include "support/thumb_cache_builder.h"

#include <QImage>
#include <QLinearGradient>
#include <QPainter>

#include <array>
#include <cmath>
#include <cstdio>
#include <fstream>

using iosphoto::test::ThumbCacheBuilder;

namespace {

constexpr int format = 120;
constexpr int pictures = 24;
constexpr int gap = 3; ///< empty records, as deleted photos leave them

/// Sizes as phones have them: landscape, portrait, square, panorama.
constexpr std::array<QSize, 4> sizes = {QSize(120, 90), QSize(90, 120), QSize(120, 120),
                                        QSize(120, 45)};

/// The sky at an hour from 0 to 1, with its sun.
void paintSky(QPainter &painter, QSize size, double hour)
{
    QLinearGradient sky(0, 0, 0, size.height());
    sky.setColorAt(0, QColor::fromHsvF(std::fmod(0.55 + 0.3 * hour, 1.0), 0.6, 0.95));
    sky.setColorAt(1, QColor::fromHsvF(std::fmod(0.08 + 0.4 * hour, 1.0), 0.5, 1.0));
    painter.fillRect(QRect(QPoint(0, 0), size), sky);
    constexpr int radius = 9;
    const double height = 0.6 - 0.4 * std::sin(M_PI * hour);
    painter.setBrush(QColor(255, 240, 190));
    painter.drawEllipse(QPointF(size.width() * hour, size.height() * height), radius, radius);
}

/// One of the ranges of hills, the farthest being 0.
void paintHills(QPainter &painter, QSize size, int range, int phase)
{
    const double base = size.height() * (0.55 + 0.15 * range);
    QPolygonF outline;
    outline << QPointF(0, size.height());
    for (int x = 0; x <= size.width(); ++x)
        outline << QPointF(x, base + 9 * std::sin(x / (11.0 + 6 * range) + phase + 2 * range));
    outline << QPointF(size.width(), size.height());
    painter.setBrush(QColor::fromHsvF(0.33 - 0.05 * range, 0.55, 0.65 - 0.17 * range));
    painter.drawPolygon(outline);
}

/// Hills in front of the sky, at another hour of the day in each picture.
QImage landscape(QSize size, int number)
{
    QImage picture(size, QImage::Format_RGB555);
    QPainter painter(&picture);
    painter.setPen(Qt::NoPen);
    paintSky(painter, size, number / double{pictures});
    for (int range = 0; range < 3; ++range)
        paintHills(painter, size, range, number);
    return picture;
}

/// The pixel of a record that has the picture in its middle.
std::uint16_t pixelOf(const QImage &picture, int x, int y)
{
    x -= (format - picture.width()) / 2;
    y -= (format - picture.height()) / 2;
    if (!picture.valid(x, y))
        return 0;
    constexpr int mostOfFiveBits = 31;
    const QColor colour = picture.pixelColor(x, y);
    const auto scaled = [](double part) {
        return static_cast<unsigned>(std::lround(part * mostOfFiveBits));
    };
    return static_cast<std::uint16_t>(scaled(colour.redF()) << 10 | scaled(colour.greenF()) << 5 |
                                      scaled(colour.blueF()));
}

} // namespace

int main(int argumentCount, char **arguments)
{
    if (argumentCount != 2) {
        std::fprintf(stderr, "usage: sample_thumb_cache FILE\n");
        return 2;
    }
    ThumbCacheBuilder cache(format);
    for (int number = 0; number < pictures; ++number) {
        if (number == pictures / 2)
            cache.empty(gap);
        const QImage picture =
            landscape(sizes.at(static_cast<std::size_t>(number) % sizes.size()), number);
        cache.thumbnail(static_cast<std::uint32_t>(picture.width()),
                        static_cast<std::uint32_t>(picture.height()),
                        [&](int x, int y) { return pixelOf(picture, x, y); });
    }
    constexpr int recordsPerStep = 64; // in which caches grow
    cache.empty(recordsPerStep - pictures - gap);
    std::ofstream file(arguments[1], std::ios::binary);
    file << cache.bytes();
    file.close();
    return file ? 0 : 3;
}
