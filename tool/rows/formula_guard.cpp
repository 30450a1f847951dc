#include "rows/formula_guard.h"

#include "text/code_points.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace iosphoto::tool {

namespace {

constexpr char guard = '\'';

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// "-5" or "+1.25", in which nothing can run.
bool isPlainNumber(std::string_view text)
{
    text.remove_prefix(text.front() == '-' || text.front() == '+' ? 1 : 0);
    const std::size_t point = std::min(text.find('.'), text.size());
    const std::string_view whole = text.substr(0, point);
    const std::string_view fraction = text.substr(std::min(point + 1, text.size()));
    return !whole.empty() && std::all_of(whole.begin(), whole.end(), isDigit) &&
           std::all_of(fraction.begin(), fraction.end(), isDigit);
}

bool isSign(utf8proc_int32_t codePoint)
{
    switch (codePoint) {
    case '=':
    case '+':
    case '-':
    case '@':
    case 0xFF1D: // the same in full width
    case 0xFF0B:
    case 0xFF0D:
    case 0xFF20:
        return true;
    default:
        return false;
    }
}

bool isSeparator(utf8proc_int32_t codePoint)
{
    return codePoint > 0 && codePoint < 0x80 &&
           std::strchr(foreignSeparators, static_cast<char>(codePoint)) != nullptr;
}

bool isDropped(utf8proc_int32_t codePoint)
{
    switch (utf8proc_category(codePoint)) {
    case UTF8PROC_CATEGORY_CC:
    case UTF8PROC_CATEGORY_CF:
    case UTF8PROC_CATEGORY_ZL:
    case UTF8PROC_CATEGORY_ZP:
    case UTF8PROC_CATEGORY_ZS:
        return true;
    default:
        return codePoint == '"';
    }
}

/// What stands in a text from `at` to the next `;`. A formula ends there at the latest, but not at
/// a tab or line break, which are blanks in it.
std::string_view untilSemicolon(const std::string &text, std::size_t at)
{
    const std::size_t end = std::min(text.find(';', at), text.size());
    return std::string_view(text).substr(at, end - at);
}

} // namespace

std::string withoutFormulas(const std::string &text)
{
    const bool beginsWithBreak = text.find_first_of("\t\r\n") == 0;
    std::string guarded(beginsWithBreak ? 1 : 0, guard);
    bool isAtStart = true;
    std::size_t at = 0;
    forEachCodePoint(text, [&](utf8proc_int32_t codePoint, std::size_t bytes) {
        if (isAtStart && isSign(codePoint) && !isPlainNumber(untilSemicolon(text, at)))
            guarded += guard;
        guarded.append(text, at, bytes);
        at += bytes;
        isAtStart = isSeparator(codePoint) || (isAtStart && isDropped(codePoint));
    });
    return guarded;
}

} // namespace iosphoto::tool
