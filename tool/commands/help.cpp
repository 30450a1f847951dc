#include "commands/help.h"

#include "terminal/display_width.h"
#include "terminal/terminal.h"
#include "text/translate.h"

#include <fmt/ranges.h>

#include <iostream>
#include <limits>
#include <sstream>
#include <utility>

namespace iosphoto::tool {

namespace {

/// The columns of a help that is not shown on a terminal; descriptions have a line each there.
constexpr std::size_t columnsOfParagraphs = 80;
constexpr std::size_t columnsOfEntries = std::numeric_limits<std::size_t>::max();

/// The column in which descriptions begin: where there is little room, below the name.
std::size_t descriptionAt(std::size_t columns)
{
    constexpr std::size_t beside = 30;
    constexpr std::size_t below = 6;
    return columns >= 2 * beside ? beside : below;
}

} // namespace

HelpFormat::HelpFormat(const Terminal &terminal) : terminal_(terminal)
{
    label("Usage", translate("Usage"));
    label("OPTIONS", translate("OPTIONS"));
    label("SUBCOMMAND", translate("COMMAND"));
    label("Positionals", translate("Arguments"));
}

/// "  name    description": the description on further lines where it is long.
std::string HelpFormat::entry(const std::string &name, const std::string &description) const
{
    const std::size_t columns = terminal_.screenOf(std::cout).columns.value_or(columnsOfEntries);
    const std::size_t at = descriptionAt(columns);
    const std::string further = "\n" + std::string(at, ' ');
    std::string text = padded("  " + name, at - 1);
    text += displayWidth(text) < at ? " " : further;
    const char *between = "";
    for (const std::string &line : wrapped(description, columns > at ? columns - at : 1)) {
        text += between + line;
        between = further.c_str();
    }
    return text + "\n";
}

/// Text of several lines with the long ones wrapped. Those that are indented are command lines,
/// which stay whole.
std::string HelpFormat::paragraphs(const std::string &text) const
{
    const std::size_t columns = terminal_.screenOf(std::cout).columns.value_or(columnsOfParagraphs);
    std::istringstream lines(text);
    std::string all;
    for (std::string line; std::getline(lines, line);) {
        if (line.compare(0, 1, " ") == 0)
            all += line + "\n";
        else
            for (const std::string &part : wrapped(line, columns))
                all += part + "\n";
    }
    return all;
}

std::string HelpFormat::make_option(const CLI::Option *option, bool isPositional) const
{
    const std::string name = isPositional
                                 ? make_option_usage(option)
                                 : make_option_name(option, false) + make_option_opts(option);
    return entry(name, make_option_desc(option));
}

std::string HelpFormat::make_option_opts(const CLI::Option *option) const
{
    const std::string value = option->get_type_name(); // none of flags
    return value.empty() ? "" : " " + value;
}

std::string HelpFormat::make_description(const CLI::App *app) const
{
    return paragraphs(Formatter::make_description(app));
}

std::string HelpFormat::make_usage(const CLI::App *app, std::string name) const
{
    return paragraphs(Formatter::make_usage(app, std::move(name)));
}

std::string HelpFormat::make_footer(const CLI::App *app) const
{
    return paragraphs(Formatter::make_footer(app));
}

std::string HelpFormat::make_help(const CLI::App *app, std::string name,
                                  CLI::AppFormatMode mode) const
{
    std::string help = Formatter::make_help(app, std::move(name), mode);
    return CLI::detail::find_and_replace(help, "\n\n\n", "\n\n");
}

std::string HelpFormat::make_subcommand(const CLI::App *command) const
{
    return entry(command->get_name(), command->get_description());
}

std::string helpFooter(const std::vector<std::string> &paragraphs)
{
    return fmt::format("{}", fmt::join(paragraphs, "\n\n"));
}

std::string examples(const std::vector<std::string> &commandLines)
{
    return translate("Examples:") + fmt::format("\n  {}", fmt::join(commandLines, "\n  "));
}

std::string listOfFields(const std::vector<std::string> &keys)
{
    return translate("FIELDS: {0}", fmt::join(keys, ", "));
}

std::string exitCodesOfALibrary()
{
    return translate(
        "Exit: 0 good, 1 incomplete, 2 wrong usage, 3 to 6 unusable files; see the README");
}

} // namespace iosphoto::tool
