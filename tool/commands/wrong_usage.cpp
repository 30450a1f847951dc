#include "commands/wrong_usage.h"

#include "text/translate.h"

#include <optional>

namespace iosphoto::tool {

namespace {

/// A text of the parser's: its class of errors, words of it, and the same in ours, with places for
/// what stands before and after the words.
struct Wording
{
    CLI::ExitCodes error;
    const char *words;
    const char *english;
};

constexpr Wording wordings[] = {
    {CLI::ExitCodes::RequiredError, " is required", translatable("{0} is required")},
    {CLI::ExitCodes::RequiresError, " requires ", translatable("{0} requires {1}")},
    {CLI::ExitCodes::ExcludesError, " excludes ", translatable("{0} excludes {1}")},
    {CLI::ExitCodes::ArgumentMismatch, ": 1 required ", translatable("{0} requires a value")},
    {CLI::ExitCodes::ArgumentMismatch, ": At Most 1 required but received ",
     translatable("{0} is given more than once")},
    {CLI::ExitCodes::ConversionError, ": too many inputs for a flag",
     translatable("{0} takes no value")},
    {CLI::ExitCodes::ConversionError,
     "Could not convert: ", translatable("{1}: the number is too large")},
    {CLI::ExitCodes::ConversionError, ": Should be true/false or a number",
     translatable("{0} takes no value")},
    {CLI::ExitCodes::ValidationError, ": ", translatable("{0}: {1}")},
};

std::string inOurWords(const CLI::ParseError &error)
{
    std::string text = error.what();
    for (const Wording &wording : wordings) {
        const std::string words = wording.words;
        const std::size_t at = text.find(words);
        if (error.get_exit_code() != static_cast<int>(wording.error) || at == std::string::npos)
            continue;
        return translate(wording.english, text.substr(0, at), text.substr(at + words.size()));
    }
    return text;
}

/// What the parser had no use for, in the order of the command line.
std::string unexpected(const CLI::App &app)
{
    constexpr bool withCommands = true;
    return translate("not expected: {0}", CLI::detail::join(app.remaining(withCommands), " "));
}

/// The parser says only that a command is missing where the first word is none.
std::string wrongCommand(const CLI::App &app)
{
    const std::vector<std::string> left = app.remaining();
    if (left.empty())
        return translate("a command is required");
    return left.front().compare(0, 1, "-") == 0 ? unexpected(app)
                                                : translate("'{0}' is not a command", left.front());
}

std::string textOf(const CLI::App &app, const CLI::ParseError &error)
{
    const auto code = static_cast<CLI::ExitCodes>(error.get_exit_code());
    if (code == CLI::ExitCodes::ExtrasError)
        return unexpected(app);
    if (code == CLI::ExitCodes::RequiredError && app.get_subcommands().empty())
        return wrongCommand(app);
    return inOurWords(error);
}

} // namespace

Failure wrongUsage(const CLI::App &app, const CLI::ParseError &error)
{
    return {WrongUsage, translate("{0}; see iosphoto --help", textOf(app, error))};
}

} // namespace iosphoto::tool
