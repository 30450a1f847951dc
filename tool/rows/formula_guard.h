#ifndef IOSPHOTO_TOOL_FORMULA_GUARD_H
#define IOSPHOTO_TOOL_FORMULA_GUARD_H

#include <string>

namespace iosphoto::tool {

/// What ends a cell for a spreadsheet that does not take commas, or a row.
constexpr const char *foreignSeparators = ";\t\r\n";

/// A text of a cell of CSV with an apostrophe in front of each formula in it, so that no
/// spreadsheet runs one. Numbers such as "-5" stay.
///
/// A formula begins with one of = + - @, which may be full-width ones, at the beginning of the cell
/// or behind a foreign separator: where `;` separates cells, as in most of Europe, quotes hold only
/// the first cell of a line together, as those of the others stand in the middle of one. Blanks and
/// quotes in front do not count, as spreadsheets drop them. A tab or line break at the beginning is
/// guarded itself.
std::string withoutFormulas(const std::string &text);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_FORMULA_GUARD_H
