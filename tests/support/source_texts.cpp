#include "support/source_texts.h"

#include "support/temporary_folder.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cctype>
#include <vector>

namespace iosphoto::test {

namespace {

/// Code that a cursor moves through, token by token.
class Code
{
public:
    explicit Code(std::string code) : code_(std::move(code)) {}

    /// The next token: a word, a literal with its quotes or a single character. Empty at the end.
    std::string next()
    {
        skipBlanks();
        const std::size_t start = at_;
        if (at_ >= code_.size())
            return {};
        const char first = code_[at_++];
        if (first == '"' || first == '\'')
            passLiteral(first);
        else
            while (isOfWord(first) && at_ < code_.size() && isOfWord(code_[at_]))
                ++at_;
        return code_.substr(start, at_ - start);
    }

private:
    static bool isOfWord(char character)
    {
        return std::isalnum(static_cast<unsigned char>(character)) != 0 || character == '_' ||
               character == '\''; // as in 1'000
    }

    void skipBlanks()
    {
        for (;;) {
            if (code_.compare(at_, 2, "//") == 0)
                at_ = std::min(code_.find('\n', at_), code_.size());
            else if (at_ < code_.size() && std::isspace(static_cast<unsigned char>(code_[at_])))
                ++at_;
            else
                return;
        }
    }

    void passLiteral(char quote)
    {
        while (at_ < code_.size() && code_[at_] != quote)
            at_ += code_[at_] == '\\' ? std::size_t{2} : 1;
        ++at_;
    }

    std::string code_;
    std::size_t at_ = 0;
};

/// The places in a marker's arguments where texts are.
std::size_t textArguments(const std::string &word)
{
    const std::vector<std::string> ofOneText = {"translate", "translateTerm", "translatable"};
    if (std::find(ofOneText.begin(), ofOneText.end(), word) != ofOneText.end())
        return 1;
    return word == "translateTo" ? 2 : word == "counted" ? 3 : 0;
}

/// The marker that a token names counts in the arguments that follow it.
struct Call
{
    std::size_t texts = 0; ///< its first arguments, among which texts are
    std::size_t argument = 0;
    std::string literal; ///< so far, as it is written
};

} // namespace

std::set<std::string> textsOf(const std::string &source)
{
    std::set<std::string> texts;
    std::vector<Call> calls; // that are open, as parentheses are
    Code code(source);
    std::string before;
    const auto endLiteral = [&] {
        if (!calls.empty() && !calls.back().literal.empty() &&
            calls.back().argument < calls.back().texts)
            texts.insert(nlohmann::json::parse('"' + calls.back().literal + '"'));
        if (!calls.empty())
            calls.back().literal.clear();
    };
    for (std::string token = code.next(); !token.empty(); token = code.next()) {
        if (token.front() == '"' && !calls.empty()) {
            calls.back().literal += token.substr(1, token.size() - 2);
        } else {
            endLiteral();
            if (token == "(")
                calls.push_back({textArguments(before), 0, {}});
            else if (token == "," && !calls.empty())
                ++calls.back().argument;
            else if (token == ")" && !calls.empty())
                calls.pop_back();
        }
        before = token;
    }
    return texts;
}

std::set<std::string> textsIn(const std::filesystem::path &folder)
{
    std::set<std::string> texts;
    for (const auto &entry : std::filesystem::recursive_directory_iterator(folder))
        if (entry.path().extension() == ".cpp" || entry.path().extension() == ".h")
            texts.merge(textsOf(readFile(entry.path())));
    return texts;
}

std::set<std::string> placesOf(const std::string &text)
{
    std::set<std::string> places;
    for (std::size_t at = text.find('{'); at != std::string::npos; at = text.find('{', at + 1))
        places.insert(text.substr(at, text.find('}', at) - at + 1));
    return places;
}

} // namespace iosphoto::test
