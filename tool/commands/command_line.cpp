#include "commands/command_line.h"

#include "files/standard_input.h"
#include "text/translate.h"

#include <algorithm>
#include <filesystem>

namespace iosphoto::tool {

namespace {

using Arguments = std::vector<std::string>;

constexpr const char *help = "help";
constexpr const char *helpOption = "--help";

bool isOption(const std::string &argument)
{
    return argument.size() > 1 && argument.front() == '-';
}

/// Whether the value of an option is the next argument.
bool takesNext(const CLI::App &app, const std::string &argument)
{
    const CLI::Option *const option = app.get_option_no_throw(argument);
    return option != nullptr && option->get_items_expected_max() > 0;
}

/// The first argument that is no option of the program, nor a value of one; the end if there is
/// none.
Arguments::iterator firstWord(const CLI::App &app, Arguments &arguments)
{
    for (auto each = arguments.begin(); each != arguments.end(); ++each) {
        if (!isOption(*each))
            return each;
        if (takesNext(app, *each) && each + 1 != arguments.end())
            ++each;
    }
    return arguments.end();
}

bool isCommand(const CLI::App &app, const std::string &word)
{
    const std::vector<std::string> names = commandNames(app);
    return std::find(names.begin(), names.end(), word) != names.end();
}

/// A path that is written as one may be a mistake, but of a path.
bool isSource(const std::string &word)
{
    std::error_code ignored;
    return word == "-" || word.find_first_of("/.") != std::string::npos ||
           std::filesystem::exists(word, ignored);
}

/// A path in an archive that comes through standard input, as one that does not look like an
/// option.
void nameStandardInput(std::string &argument)
{
    std::error_code ignored;
    const std::string input = StandardInput::name;
    if (argument.rfind(input + "/", 0) == 0 && !std::filesystem::exists(input, ignored))
        argument.replace(0, input.size(), StandardInput::device);
}

/// What stands behind "help" as a command that is asked for its help.
Arguments helpOn(const CLI::App &app, Arguments arguments)
{
    const auto command = firstWord(app, arguments);
    const bool isKnown = command == arguments.end() || isCommand(app, *command);
    if (command != arguments.end() && *command == help)
        arguments.erase(command);
    if (isKnown) // else it is told that it is none
        arguments.emplace_back(helpOption);
    return arguments;
}

} // namespace

Arguments completed(const CLI::App &app, Arguments arguments)
{
    if (arguments.empty())
        return {helpOption};
    std::for_each(arguments.begin(), arguments.end(), nameStandardInput);
    const auto word = firstWord(app, arguments);
    if (word == arguments.end())
        return arguments;
    if (*word == help) {
        arguments.erase(word);
        return helpOn(app, std::move(arguments));
    }
    if (!isCommand(app, *word) && isSource(*word))
        arguments.insert(arguments.begin(), "info");
    return arguments;
}

std::vector<std::string> commandNames(const CLI::App &app)
{
    std::vector<std::string> names;
    for (const CLI::App *command : app.get_subcommands({}))
        names.push_back(command->get_name());
    names.emplace_back(help);
    return names;
}

std::string shortForms()
{
    return translate("'iosphoto SOURCE' is 'iosphoto info SOURCE', and 'iosphoto help COMMAND' is "
                     "'iosphoto COMMAND --help'.");
}

} // namespace iosphoto::tool
