#include "text/json.h"

namespace iosphoto::tool {

Json textOrNull(const std::string &text)
{
    return text.empty() ? Json() : Json(text);
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
