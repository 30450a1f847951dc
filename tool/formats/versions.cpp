#include "formats/versions.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace iosphoto::tool {

namespace {

const std::string digits = "0123456789";
const std::string letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";

/// How many characters from `at` on are among these.
std::size_t length(const std::string &text, std::size_t at, const std::string &characters)
{
    return std::min(text.find_first_not_of(characters, at), text.size()) - at;
}

} // namespace

std::string versionOrNothing(const std::string &text)
{
    constexpr std::size_t longest = 16;
    const bool isVersion = text.size() <= longest && length(text, 0, digits + ".") == text.size();
    return isVersion ? text : "";
}

std::string productOrNothing(const std::string &text)
{
    constexpr std::size_t longest = 32;
    if (text.size() > longest)
        return {};
    std::size_t at = 0;
    for (const std::string &characters : {letters, digits, std::string(","), digits}) {
        const std::size_t count = at < text.size() ? length(text, at, characters) : 0;
        if (count == 0 || (characters == "," && count > 1))
            return {};
        at += count;
    }
    return at == text.size() ? text : "";
}

int firstNumber(const std::string &text)
{
    const std::size_t end = length(text, 0, digits);
    int number = 0;
    const auto result = std::from_chars(text.data(), text.data() + end, number);
    return result.ec == std::errc::result_out_of_range ? std::numeric_limits<int>::max() : number;
}

} // namespace iosphoto::tool
