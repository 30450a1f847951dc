#ifndef IOSPHOTO_TOOL_PARAGRAPH_H
#define IOSPHOTO_TOOL_PARAGRAPH_H

#include "terminal/terminal.h"

#include <ostream>
#include <string>

namespace iosphoto::tool {

/// Prints printable text with the end of its line; on a terminal, in as many lines as it takes.
void printParagraph(std::ostream &out, const Screen &screen, const std::string &text);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PARAGRAPH_H
