#ifndef IOSPHOTO_TOOL_CODE_POINTS_H
#define IOSPHOTO_TOOL_CODE_POINTS_H

#include <utf8proc.h>

#include <string>

namespace iosphoto::tool {

/// Hands every code point of `text` and the number of its bytes to `take`; a byte that is not UTF-8
/// counts as U+FFFD.
template <typename Take>
void forEachCodePoint(const std::string &text, Take take)
{
    constexpr utf8proc_int32_t replacement = 0xFFFD;
    const auto *bytes = reinterpret_cast<const utf8proc_uint8_t *>(text.data());
    auto left = static_cast<utf8proc_ssize_t>(text.size());
    while (left > 0) {
        utf8proc_int32_t codePoint = 0;
        utf8proc_ssize_t length = utf8proc_iterate(bytes, left, &codePoint);
        if (length <= 0) {
            codePoint = replacement;
            length = 1;
        }
        take(codePoint, static_cast<std::size_t>(length));
        bytes += length;
        left -= length;
    }
}

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_CODE_POINTS_H
