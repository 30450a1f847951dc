#ifndef IOSPHOTO_TOOL_TERMINAL_H
#define IOSPHOTO_TOOL_TERMINAL_H

#include <optional>
#include <ostream>
#include <string>

namespace iosphoto::tool {

enum class ColorChoice { Auto, Always, Never };

/// When to use colours from now on. Auto, as before: on a terminal that knows them, unless NO_COLOR
/// is set.
void chooseColor(ColorChoice choice);

/// What a text is shown on.
struct Screen
{
    bool isTerminal = false;
    bool isColored = false;
    std::optional<std::size_t> columns; ///< that a line may take; nothing where all may be shown
};

/// What a stream is shown on: std::cout and std::cerr may be terminals, others are none.
Screen screenOf(const std::ostream &stream);

enum class Ink { Bold = 1, Red = 31, Yellow = 33 };

/// `text` in an ink, where the screen is coloured.
std::string inked(const std::string &text, Ink ink, const Screen &screen);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_TERMINAL_H
