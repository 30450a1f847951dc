#include "output/paragraph.h"

#include "output/display_width.h"
#include "output/terminal.h"

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
