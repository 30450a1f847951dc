#include "text/printable.h"

#include "text/code_points.h"

#include <algorithm>
#include <cstdio>

namespace iosphoto::tool {

namespace {

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
    forEachCodePoint(text, [&](utf8proc_int32_t codePoint, std::size_t) {
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
    forEachCodePoint(text, [&](utf8proc_int32_t codePoint, std::size_t /*bytes*/) {
        whole += encoded(codePoint);
    });
    return whole;
}

} // namespace iosphoto::tool
