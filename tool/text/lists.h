#ifndef IOSPHOTO_TOOL_LISTS_H
#define IOSPHOTO_TOOL_LISTS_H

#include "text/translate.h"

#include <string>

namespace iosphoto::tool {

/// Texts with a separator between them.
/// @param textOf  makes the text of an item
template <typename Items, typename TextOf>
std::string joinedTexts(const Items &items, const std::string &separator, TextOf textOf)
{
    std::string all;
    bool isFirst = true;
    for (const auto &item : items) {
        all += isFirst ? "" : separator;
        all += textOf(item);
        isFirst = false;
    }
    return all;
}

template <typename Texts>
std::string joinedTexts(const Texts &texts, const std::string &separator)
{
    return joinedTexts(texts, separator, [](const auto &text) { return text; });
}

/// The same with the comma of the current language.
template <typename Items, typename TextOf>
std::string listForPeople(const Items &items, TextOf textOf)
{
    return joinedTexts(items, translate(", "), textOf);
}

template <typename Texts>
std::string listForPeople(const Texts &texts)
{
    return joinedTexts(texts, translate(", "));
}

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_LISTS_H
