#include "text/translate.h"

#include "chinese.h"

#include <nlohmann/json.hpp>

#include <atomic>
#include <cstdlib>
#include <map>

namespace iosphoto::tool {

namespace {

using Texts = std::map<std::string, std::string>;

std::atomic<Language> spoken = Language::English; // an interruption speaks on its own thread

const Texts &chineseTexts()
{
    static const auto texts = nlohmann::json::parse(chinese).get<Texts>();
    return texts;
}

} // namespace

void setLanguage(Language language)
{
    spoken = language;
}

Language currentLanguage()
{
    return spoken;
}

Language languageOfLocale()
{
    for (const char *variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const char *const value = std::getenv(variable);
        if (value != nullptr && *value != '\0')
            return std::string(value).rfind("zh", 0) == 0 ? Language::Chinese : Language::English;
    }
    return Language::English;
}

std::string translateTerm(const std::string &english, Language language)
{
    if (language == Language::English)
        return english;
    const auto found = chineseTexts().find(english);
    return found != chineseTexts().end() ? found->second : english;
}

} // namespace iosphoto::tool
