#ifndef IOSPHOTO_TOOL_HELP_H
#define IOSPHOTO_TOOL_HELP_H

#include "terminal/terminal.h"

#include <CLI/CLI.hpp>

#include <string>
#include <vector>

namespace iosphoto::tool {

/// Help in the language that is spoken, with descriptions that are aligned whatever characters they
/// have, and wrapped on a terminal. Of an option it says the name and what its value is; what else
/// has to be known is for its description.
class HelpFormat : public CLI::Formatter
{
public:
    /// @param terminal  has to outlive the format
    explicit HelpFormat(const Terminal &terminal);

    std::string make_option(const CLI::Option *option, bool isPositional) const override;
    std::string make_option_opts(const CLI::Option *option) const override;
    std::string make_description(const CLI::App *app) const override;
    std::string make_usage(const CLI::App *app, std::string name) const override;
    std::string make_footer(const CLI::App *app) const override;
    std::string make_help(const CLI::App *app, std::string name,
                          CLI::AppFormatMode mode) const override;
    std::string make_subcommand(const CLI::App *command) const override;

private:
    std::string entry(const std::string &name, const std::string &description) const;
    std::string paragraphs(const std::string &text) const;

    const Terminal &terminal_;
};

/// What the help of a command ends with: paragraphs, the last of them its exit codes.
std::string helpFooter(const std::vector<std::string> &paragraphs);

/// The paragraph that shows how a command is used, a command line each.
std::string examples(const std::vector<std::string> &commandLines);

/// The paragraph that --fields refers to.
std::string listOfFields(const std::vector<std::string> &keys);

/// The exit codes of the commands that show a library.
std::string exitCodesOfALibrary();

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_HELP_H
