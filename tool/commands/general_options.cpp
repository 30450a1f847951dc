#include "commands/general_options.h"

#include "commands/help.h"
#include "commands/option_values.h"
#include "process/failure.h"
#include "terminal/terminal.h"
#include "text/lists.h"
#include "text/translate.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace iosphoto::tool {

namespace {

template <typename Value>
using Choices = std::vector<std::pair<std::string, Value>>;

const Choices<Language> languages = {{"en", Language::English}, {"zh", Language::Chinese}};
const Choices<ColorChoice> colors = {
    {"auto", ColorChoice::Auto}, {"always", ColorChoice::Always}, {"never", ColorChoice::Never}};

template <typename Value>
std::string namesOf(const Choices<Value> &choices, const std::string &separator)
{
    return joinedTexts(choices, separator, [](const auto &choice) { return choice.first; });
}

/// The value of an option as the parser will see it: "--option value" or "--option=value".
std::optional<std::string> valueOf(const std::string &option,
                                   const std::vector<std::string> &arguments)
{
    const std::string start = option + "=";
    for (std::size_t i = 0; i < arguments.size() && arguments[i] != "--"; ++i) {
        if (arguments[i] == option && i + 1 < arguments.size())
            return arguments[i + 1];
        if (arguments[i].compare(0, start.size(), start) == 0)
            return arguments[i].substr(start.size());
    }
    return std::nullopt;
}

template <typename Value>
Value chosen(const std::string &option, const Choices<Value> &choices,
             const std::vector<std::string> &arguments, Value usual)
{
    const std::optional<std::string> name = valueOf(option, arguments);
    if (!name)
        return usual;
    const auto found = std::find_if(choices.begin(), choices.end(),
                                    [&](const auto &choice) { return choice.first == *name; });
    if (found == choices.end())
        throw Failure(WrongUsage, translate("{0}: '{1}' is none of {2}; see iosphoto --help",
                                            option, *name, namesOf(choices, ", ")));
    return found->second;
}

void addGeneralOptionsTo(CLI::App &command, Terminal &terminal, const std::string &version)
{
    for (CLI::Option *option : command.get_options())
        if (option->get_group() == "Options")
            option->group(translate("Options"));
    const std::string group = translate("General");
    const auto obeyed = [](const std::string &) {}; // obeyLookOptions() has done it
    command.add_option_function<std::string>("--lang", obeyed, translate("language of texts"))
        ->type_name(namesOf(languages, "|"))
        ->group(group);
    command.add_option_function<std::string>("--color", obeyed, translate("when to use colors"))
        ->type_name(namesOf(colors, "|"))
        ->group(group);
    command
        .add_flag_callback(
            "-q,--quiet", [&terminal] { terminal.beQuiet(); },
            translate("no remarks and no progress; what is missing is still said"))
        ->group(group);
    command.set_version_flag("-V,--version", version, translate("print the version"))->group(group);
    command.set_help_flag("-h,--help", translate("print this help"))->group(group);
}

} // namespace

void obeyLookOptions(Terminal &terminal, int argumentCount, char **arguments)
{
    const std::vector<std::string> given(arguments + std::min(argumentCount, 1),
                                         arguments + argumentCount);
    setLanguage(languageOfLocale());
    setLanguage(chosen("--lang", languages, given, currentLanguage()));
    terminal.chooseColor(chosen("--color", colors, given, ColorChoice::Auto));
}

void addGeneralOptions(CLI::App &app, Terminal &terminal, const std::string &version)
{
    const auto format = std::make_shared<HelpFormat>(terminal);
    app.formatter(format);
    addGeneralOptionsTo(app, terminal, version);
    for (CLI::App *command : app.get_subcommands({})) {
        command->formatter(format);
        command->group(translate("Commands"));
        addGeneralOptionsTo(*command, terminal, version);
    }
}

void addEvidenceOption(CLI::App &command, std::optional<std::string> &file)
{
    command
        .add_option("--evidence", file,
                    translate("write a JSON file that lists the files read and written, with their "
                              "SHA-256 hashes"))
        ->type_name(translate("FILE"))
        ->check(notEmpty());
}

} // namespace iosphoto::tool
