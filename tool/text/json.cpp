#include "text/json.h"

#include "text/printable.h"

#include <fmt/format.h>

#include <string_view>

namespace iosphoto::tool {

Json textOrNull(const std::string &text)
{
    return text.empty() ? Json() : Json(text);
}

Json bytesOrNull(const std::string &text)
{
    if (isUtf8(text))
        return {};
    constexpr std::string_view plain = "-._~/";
    std::string bytes;
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        const bool isPlain = (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') ||
                             (byte >= 'a' && byte <= 'z') ||
                             plain.find(character) != std::string_view::npos;
        bytes += isPlain ? std::string(1, character) : fmt::format("%{:02X}", byte);
    }
    return bytes;
}

std::string oneLine(const Json &document)
{
    return document.dump(-1, ' ', false, Json::error_handler_t::replace);
}

void print(const Json &document, std::ostream &out)
{
    constexpr int indent = 2;
    out << document.dump(indent, ' ', false, Json::error_handler_t::replace) << '\n';
}

} // namespace iosphoto::tool
