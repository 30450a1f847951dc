#ifndef IOSPHOTO_TOOL_TRANSLATE_H
#define IOSPHOTO_TOOL_TRANSLATE_H

#include <fmt/format.h>

#include <string>

namespace iosphoto::tool {

enum class Language { English, Chinese };

/// The language in which the command speaks from now on. English before.
void setLanguage(Language language);
Language currentLanguage();

/// The language that the environment asks for, as LC_ALL, LC_MESSAGES and LANG say in this order.
Language languageOfLocale();

/// An English text in the language that is spoken: tool/text/chinese.json has the others. A
/// text that is not there stays English.
std::string translateTerm(const std::string &english, Language language = currentLanguage());

/// Marks a literal that is translated where it is used, as those of a table are.
constexpr const char *translatable(const char *english)
{
    return english;
}

/// The translation of `english` with its places {0}, {1} ... filled in. Every text that a person
/// reads is made here, of a literal, so that a test can tell which ones lack a translation.
template <typename... Values>
std::string translate(const char *english, const Values &...values)
{
    return fmt::format(fmt::runtime(translateTerm(english)), values...);
}

/// The same in a language, whichever is spoken.
template <typename... Values>
std::string translateTo(Language language, const char *english, const Values &...values)
{
    return fmt::format(fmt::runtime(translateTerm(english, language)), values...);
}

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_TRANSLATE_H
