#ifndef IOSPHOTO_TOOL_HELP_FORMAT_H
#define IOSPHOTO_TOOL_HELP_FORMAT_H

#include <CLI/CLI.hpp>

#include <string>

namespace iosphoto::tool {

/// Help in the language that is spoken, with descriptions that are aligned whatever characters they
/// have, and wrapped on a terminal. Of an option it says the name and what its value is; what else
/// has to be known is for its description.
class HelpFormat : public CLI::Formatter
{
public:
    HelpFormat();

    std::string make_option(const CLI::Option *option, bool isPositional) const override;
    std::string make_option_opts(const CLI::Option *option) const override;
    std::string make_description(const CLI::App *app) const override;
    std::string make_usage(const CLI::App *app, std::string name) const override;
    std::string make_footer(const CLI::App *app) const override;
    std::string make_help(const CLI::App *app, std::string name,
                          CLI::AppFormatMode mode) const override;
    std::string make_subcommand(const CLI::App *command) const override;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_HELP_FORMAT_H
