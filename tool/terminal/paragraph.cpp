#include "terminal/paragraph.h"

#include "terminal/display_width.h"

namespace iosphoto::tool {

void printParagraph(std::ostream &out, const Screen &screen, const std::string &text)
{
    if (!screen.columns) {
        out << text << '\n';
        return;
    }
    for (const std::string &line : wrapped(text, *screen.columns))
        out << line << '\n';
}

} // namespace iosphoto::tool
