#ifndef IOSPHOTO_TOOL_DIGITS_H
#define IOSPHOTO_TOOL_DIGITS_H

#include <QColor>
#include <QPainter>

namespace iosphoto::tool {

constexpr int digitHeight = 14; ///< pixels

/// Draws a number, centred at the top of `area`. Qt's own texts need a display's plugin and fonts,
/// which a server lacks, and leave a folder behind.
void drawNumber(QPainter &painter, const QRect &area, int number, const QColor &colour);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_DIGITS_H
