#include "output/printable.h"

#include <utf8proc.h>

#include <algorithm>
#include <cstdio>

namespace iosphoto::tool {

namespace {

constexpr utf8proc_int32_t replacement = 0xFFFD;

/// Hands every code point of `text` to `take`; a byte that is not UTF-8 counts as U+FFFD.
template <typename Take>
void forEachCodePoint(const std::string &text, Take take)
{
    const auto *bytes = reinterpret_cast<const utf8proc_uint8_t *>(text.data());
    auto left = static_cast<utf8proc_ssize_t>(text.size());
    while (left > 0) {
        utf8proc_int32_t codePoint = 0;
        utf8proc_ssize_t length = utf8proc_iterate(bytes, left, &codePoint);
        if (length <= 0) {
            codePoint = replacement;
            length = 1;
        }
        take(codePoint);
        bytes += length;
        left -= length;
    }
}

bool isInvisible(utf8proc_int32_t codePoint)
{
    switch (utf8proc_category(codePoint)) {
    case UTF8PROC_CATEGORY_CC:
    case UTF8PROC_CATEGORY_ZL:
    case UTF8PROC_CATEGORY_ZP:
        return true;
    case UTF8PROC_CATEGORY_CF:
        return codePoint != 0x200D; // the joiner holds emoji together
    default:
        return false;
    }
}

std::string escaped(utf8proc_int32_t codePoint)
{
    switch (codePoint) {
    case '\n':
        return "\\n";
    case '\r':
        return "\\r";
    case '\t':
        return "\\t";
    default:
        break;
    }
    char text[16];
    std::snprintf(text, sizeof text, codePoint > 0xFFFF ? "\\U%08x" : "\\u%04x",
                  static_cast<unsigned>(codePoint));
    return text;
}

std::string encoded(utf8proc_int32_t codePoint)
{
    utf8proc_uint8_t bytes[4];
    const utf8proc_ssize_t length = utf8proc_encode_char(codePoint, bytes);
    return {reinterpret_cast<const char *>(bytes), static_cast<std::size_t>(length)};
}

} // namespace

std::string printable(const std::string &text)
{
    std::string line;
    forEachCodePoint(text, [&](utf8proc_int32_t codePoint) {
        line += isInvisible(codePoint) ? escaped(codePoint) : encoded(codePoint);
    });
    return line;
}

bool isUtf8(const std::string &text)
{
    const auto isAscii = [](char byte) { return static_cast<unsigned char>(byte) < 0x80; };
    if (std::all_of(text.begin(), text.end(), isAscii)) // most are, and this is quick
        return true;
    return asUtf8(text) == text;
}

std::string asUtf8(const std::string &text)
{
    std::string whole;
    forEachCodePoint(text, [&](utf8proc_int32_t codePoint) { whole += encoded(codePoint); });
    return whole;
}

std::size_t displayWidth(const std::string &text)
{
    std::size_t width = 0;
    forEachCodePoint(text, [&](utf8proc_int32_t codePoint) {
        width += static_cast<std::size_t>(utf8proc_charwidth(codePoint));
    });
    return width;
}

} // namespace iosphoto::tool
