#include "thumbnails/digits.h"

#include <array>
#include <string>

namespace iosphoto::tool {

namespace {

constexpr int columns = 5;
constexpr int rows = 7;
constexpr int dot = digitHeight / rows; ///< pixels that a dot of a glyph is wide and high
constexpr int digitAdvance = (columns + 1) * dot;

constexpr std::array<std::array<const char *, rows>, 10> glyphs = {{
    {" ### ", "#   #", "#   #", "#   #", "#   #", "#   #", " ### "},
    {"  #  ", " ##  ", "  #  ", "  #  ", "  #  ", "  #  ", " ### "},
    {" ### ", "#   #", "    #", "   # ", "  #  ", " #   ", "#####"},
    {" ### ", "#   #", "    #", "  ## ", "    #", "#   #", " ### "},
    {"   # ", "  ## ", " # # ", "#  # ", "#####", "   # ", "   # "},
    {"#####", "#    ", "#### ", "    #", "    #", "#   #", " ### "},
    {"  ## ", " #   ", "#    ", "#### ", "#   #", "#   #", " ### "},
    {"#####", "    #", "   # ", "   # ", "  #  ", "  #  ", "  #  "},
    {" ### ", "#   #", "#   #", " ### ", "#   #", "#   #", " ### "},
    {" ### ", "#   #", "#   #", " ####", "    #", "   # ", " ##  "},
}};

void drawDigit(QPainter &painter, const QPoint &at, char digit, const QColor &colour)
{
    const auto &glyph = glyphs.at(static_cast<std::size_t>(digit - '0'));
    for (int y = 0; y < rows; ++y)
        for (int x = 0; x < columns; ++x)
            if (glyph.at(static_cast<std::size_t>(y))[x] == '#')
                painter.fillRect(at.x() + x * dot, at.y() + y * dot, dot, dot, colour);
}

} // namespace

void drawNumber(QPainter &painter, const QRect &area, int number, const QColor &colour)
{
    const std::string digits = std::to_string(number);
    const int width = static_cast<int>(digits.size()) * digitAdvance - dot;
    QPoint at(area.left() + (area.width() - width) / 2, area.top());
    for (const char digit : digits) {
        drawDigit(painter, at, digit, colour);
        at.rx() += digitAdvance;
    }
}

} // namespace iosphoto::tool
