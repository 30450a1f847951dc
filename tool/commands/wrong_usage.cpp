#include "commands/wrong_usage.h"

#include "commands/command_line.h"
#include "text/did_you_mean.h"
#include "text/translate.h"

#include <algorithm>
#include <filesystem>
#include <optional>

namespace iosphoto::tool {

namespace {

// The words of the parser's errors differ from version to version, and are in one language only. So
// what is wrong is found again in the state that the parser is left in; the class of the error
// tells where to look.

using Options = std::vector<CLI::Option *>;
using Wording = std::optional<std::string>;

/// The command that is asked for; the whole program before there is one.
CLI::App &commandOf(CLI::App &app)
{
    const std::vector<CLI::App *> commands = app.get_subcommands();
    return commands.empty() ? app : *commands.front();
}

bool isGiven(const CLI::Option *option)
{
    return option->count() > 0;
}

bool isFlag(const CLI::Option *option)
{
    return option->get_items_expected_max() == 0;
}

Wording missingOption(const Options &options)
{
    for (const CLI::Option *option : options)
        if (option->get_required() && !isGiven(option))
            return translate("{0} is required", option->get_name());
    return std::nullopt;
}

Wording missingPartner(const Options &options)
{
    for (const CLI::Option *option : options)
        for (const CLI::Option *partner : option->get_needs())
            if (isGiven(option) && !isGiven(partner))
                return translate("{0} requires {1}", option->get_name(), partner->get_name());
    return std::nullopt;
}

Wording excludedOption(const Options &options)
{
    for (const CLI::Option *option : options)
        for (CLI::Option *other : options)
            if (isGiven(option) && isGiven(other) && option->get_excludes().count(other) != 0)
                return translate("{0} excludes {1}", option->get_name(), other->get_name());
    return std::nullopt;
}

Wording repeatedOption(const Options &options)
{
    for (const CLI::Option *option : options)
        if (!isFlag(option) &&
            option->count() > static_cast<std::size_t>(option->get_items_expected_max()))
            return translate("{0} is given more than once", option->get_name());
    return std::nullopt;
}

/// Whether an argument is an option by its name, "--ios" or "--ios=", or ends in it: "-qo".
bool isNamed(const CLI::Option *option, const std::string &argument)
{
    if (argument.compare(0, 2, "--") == 0)
        return option->check_name(argument.substr(0, argument.find('=')));
    return argument.size() > 1 && argument.front() == '-' &&
           option->check_name("-" + argument.substr(argument.size() - 1));
}

/// The last argument may be an option that lacks its value, and "--kind ," has none at all.
Wording missingValue(const Options &options, const std::vector<std::string> &commandLine)
{
    for (const CLI::Option *option : options)
        for (const std::string &argument : commandLine)
            if (!isFlag(option) && isNamed(option, argument) &&
                (&argument == &commandLine.back() || !isGiven(option)))
                return translate("{0} requires a value", option->get_name());
    return std::nullopt;
}

/// Flags alone are converted by the parser.
Wording flagWithValue(const Options &options)
{
    for (const CLI::Option *option : options) {
        if (!isFlag(option) || !isGiven(option))
            continue;
        try {
            (void)option->as<bool>();
        } catch (const CLI::ConversionError &) {
            return translate("{0} takes no value", option->get_name());
        }
    }
    return std::nullopt;
}

/// What the check of an option says of its values; empty if nothing, or if there is no check.
std::string complaintOf(CLI::Option &option)
{
    try {
        const CLI::Validator &check = *option.get_validator(0);
        for (const std::string &value : option.results())
            if (std::string complaint = check(value); !complaint.empty())
                return complaint;
    } catch (const CLI::OptionNotFound &) { // so the parser says that there is no check
    }
    return {};
}

Wording refusedValue(const Options &options)
{
    for (CLI::Option *option : options)
        if (const std::string complaint = complaintOf(*option); !complaint.empty())
            return translate("{0}: {1}", option->get_name(), complaint);
    return std::nullopt;
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
    if (left.front().compare(0, 1, "-") == 0)
        return unexpected(app);
    std::error_code ignored;
    return std::filesystem::exists(left.front(), ignored)
               ? translate("'{0}' is not a command", left.front())
               : translate("'{0}' is neither a command nor a file that is there", left.front());
}

/// The options of the program and of the command that is asked for.
Options optionsOf(CLI::App &app)
{
    Options options = app.get_options({});
    if (CLI::App &command = commandOf(app); &command != &app) {
        const Options ofCommand = command.get_options({});
        options.insert(options.end(), ofCommand.begin(), ofCommand.end());
    }
    return options;
}

std::vector<std::string> namesOf(const Options &options)
{
    std::vector<std::string> names;
    for (const CLI::Option *option : options) {
        if (option->get_group().empty()) // hidden
            continue;
        for (const std::string &name : option->get_lnames())
            names.push_back("--" + name);
        for (const std::string &name : option->get_snames())
            names.push_back("-" + name);
    }
    return names;
}

/// What may be meant by the first word that is no command, or by the first option that is none.
std::string suggestion(CLI::App &app, CLI::ExitCodes error)
{
    if (error != CLI::ExitCodes::ExtrasError && error != CLI::ExitCodes::RequiredError)
        return "";
    constexpr bool withCommands = true;
    const std::vector<std::string> left = app.remaining(withCommands);
    const auto isOption = [](const std::string &word) { return word.compare(0, 1, "-") == 0; };
    if (app.get_subcommands().empty() && !left.empty() && !isOption(left.front()))
        return didYouMean(left.front(), commandNames(app));
    const auto option = std::find_if(left.begin(), left.end(), isOption);
    return option != left.end()
               ? didYouMean(option->substr(0, option->find('=')), namesOf(optionsOf(app)))
               : "";
}

Wording wordingOf(CLI::App &app, const std::vector<std::string> &commandLine, CLI::ExitCodes error)
{
    const Options options = optionsOf(app);
    switch (error) {
    case CLI::ExitCodes::ExtrasError:
        return unexpected(app);
    case CLI::ExitCodes::RequiredError:
        return app.get_subcommands().empty() ? wrongCommand(app) : missingOption(options);
    case CLI::ExitCodes::RequiresError:
        return missingPartner(options);
    case CLI::ExitCodes::ExcludesError:
        return excludedOption(options);
    case CLI::ExitCodes::ArgumentMismatch: {
        const Wording repeated = repeatedOption(options);
        return repeated ? repeated : missingValue(options, commandLine);
    }
    case CLI::ExitCodes::ConversionError:
        return flagWithValue(options);
    case CLI::ExitCodes::ValidationError:
        return refusedValue(options);
    default:
        return std::nullopt;
    }
}

} // namespace

Failure wrongUsage(CLI::App &app, const std::vector<std::string> &commandLine,
                   const CLI::ParseError &error)
{
    const auto code = static_cast<CLI::ExitCodes>(error.get_exit_code());
    return {WrongUsage, translate("{0}; see iosphoto --help",
                                  wordingOf(app, commandLine, code).value_or(error.what())) +
                            suggestion(app, code)};
}

} // namespace iosphoto::tool
