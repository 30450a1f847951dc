#include "terminal/paragraph.h"

#include "terminal/display_width.h"
#include "terminal/terminal.h"

namespace iosphoto::tool {

void printParagraph(std::ostream &out, const std::string &text)
{
    const Screen screen = screenOf(out);
    if (!screen.columns) {
        out << text << '\n';
        return;
    }
    for (const std::string &line : wrapped(text, *screen.columns))
        out << line << '\n';
}

} // namespace iosphoto::tool
