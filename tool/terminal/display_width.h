#ifndef IOSPHOTO_TOOL_DISPLAY_WIDTH_H
#define IOSPHOTO_TOOL_DISPLAY_WIDTH_H

#include <string>
#include <vector>

namespace iosphoto::tool {

/// The columns that printable text takes on a terminal. What a person sees as one character (a
/// letter with its marks, a family of emoji, a flag) takes two if it is wide, else one.
std::size_t displayWidth(const std::string &text);

/// The side on which a text is cut.
enum class Elide { Left, Right };

/// `text`, or as much of one part of it as fits into `columns` with "…" for the rest.
std::string elided(const std::string &text, std::size_t columns, Elide elide = Elide::Right);

/// `text` in lines of at most `columns`, broken at spaces and beside wide characters where there
/// are some, else behind the slashes of paths; a character that is wider has a line of its own. At
/// least one line.
std::vector<std::string> wrapped(const std::string &text, std::size_t columns);

/// `text` with spaces behind it (or before it) up to a width.
std::string padded(const std::string &text, std::size_t columns, bool isRightAligned = false);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_DISPLAY_WIDTH_H
