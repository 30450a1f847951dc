#include "commands/help_format.h"

#include "language/said.h"
#include "output/display_width.h"
#include "output/terminal.h"

#include <algorithm>
#include <iostream>
#include <limits>
#include <utility>

namespace iosphoto::tool {

namespace {

constexpr std::size_t descriptionAt = 30;

/// "  name    description": the description on further lines where it is long.
std::string entry(const std::string &name, const std::string &description)
{
    constexpr std::size_t narrowest = 20;
    const std::size_t columns =
        screenOf(std::cout).columns.value_or(std::numeric_limits<std::size_t>::max());
    const std::size_t room = std::max(columns, descriptionAt + narrowest) - descriptionAt;
    std::string text = padded("  " + name, descriptionAt - 1);
    text += displayWidth(text) < descriptionAt ? " " : "\n" + std::string(descriptionAt, ' ');
    const char *between = "";
    for (const std::string &line : wrapped(description, room)) {
        text += between + line;
        static const std::string further = "\n" + std::string(descriptionAt, ' ');
        between = further.c_str();
    }
    return text + "\n";
}

} // namespace

HelpFormat::HelpFormat()
{
    label("Usage", said("Usage"));
    label("OPTIONS", said("OPTIONS"));
    label("SUBCOMMAND", said("COMMAND"));
    label("Positionals", said("Arguments"));
    label("REQUIRED", said("REQUIRED"));
    label("TEXT", said("TEXT"));
    label("INT", said("NUMBER"));
    label("UINT", said("NUMBER"));
    label("Needs", said("Needs"));
    label("Excludes", said("Excludes"));
}

std::string HelpFormat::make_option(const CLI::Option *option, bool isPositional) const
{
    return entry(make_option_name(option, isPositional) + make_option_opts(option),
                 make_option_desc(option));
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

} // namespace iosphoto::tool
