#include "thumbnails/contact_sheet.h"

#include "thumbnails/digits.h"
#include "thumbnails/picture.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace iosphoto::tool {

namespace {

constexpr int margin = 8; ///< pixels around a picture
constexpr QRgb background = qRgb(0x26, 0x26, 0x28);
constexpr QRgb ink = qRgb(0xE0, 0xE0, 0xE0);

/// Places pictures of one size in rows.
class Grid
{
public:
    Grid(int count, int side)
        : side_(side),
          // A little wider than high, as screens are.
          columns_(std::max(1, static_cast<int>(std::ceil(std::sqrt(count * 1.5))))),
          rows_((count + columns_ - 1) / columns_)
    {
        columns_ = std::min(columns_, count);
    }

    QSize size() const { return {columns_ * cell().width(), rows_ * cell().height()}; }

    QRect picture(int place) const
    {
        const QPoint corner(place % columns_ * cell().width(), place / columns_ * cell().height());
        return {corner + QPoint(margin, margin), QSize(side_, side_)};
    }

private:
    QSize cell() const { return {side_ + 2 * margin, side_ + 3 * margin + digitHeight}; }

    int side_;
    int columns_;
    int rows_;
};

/// Pictures stand on their index as on a shelf; one wider than its place is scaled down.
void drawPicture(QPainter &painter, const QRect &area, QImage picture)
{
    if (picture.width() > area.width())
        picture = picture.scaledToWidth(area.width(), Qt::SmoothTransformation);
    painter.drawImage(area.left() + (area.width() - picture.width()) / 2,
                      area.top() + area.height() - picture.height(), picture);
}

} // namespace

int sheetCount(const ThumbCache &cache)
{
    const int count = static_cast<int>(cache.thumbnails().size());
    return (count + thumbnailsPerSheet - 1) / thumbnailsPerSheet;
}

QImage drawSheet(const ThumbCache &cache, int sheet)
{
    const int first = sheet * thumbnailsPerSheet;
    const int count =
        std::min(static_cast<int>(cache.thumbnails().size()) - first, thumbnailsPerSheet);
    const Grid grid(count, cache.format().code);
    QImage image(grid.size(), QImage::Format_RGB32);
    image.fill(background);
    QPainter painter(&image);
    for (int place = 0; place < count; ++place) {
        const auto number = static_cast<std::size_t>(first) + static_cast<std::size_t>(place);
        const Thumbnail &thumbnail = cache.thumbnails().at(number);
        const QRect area = grid.picture(place);
        drawPicture(painter, area, pictureOf(cache.image(thumbnail)));
        drawNumber(painter, area.translated(0, area.height() + margin), thumbnail.index, ink);
    }
    return image;
}

} // namespace iosphoto::tool
