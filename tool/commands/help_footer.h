#ifndef IOSPHOTO_TOOL_HELP_FOOTER_H
#define IOSPHOTO_TOOL_HELP_FOOTER_H

#include <string>
#include <vector>

namespace iosphoto::tool {

/// What the help of a command ends with: paragraphs, the last of them its exit codes.
std::string helpFooter(const std::vector<std::string> &paragraphs);

/// The paragraph that shows how a command is used, a command line each.
std::string examples(const std::vector<std::string> &commandLines);

/// The paragraph that --fields refers to.
std::string listOfFields(const std::vector<std::string> &keys);

/// The exit codes of the commands that show a library.
std::string exitCodesOfALibrary();

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_HELP_FOOTER_H
