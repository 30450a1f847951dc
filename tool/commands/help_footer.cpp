#include "commands/help_footer.h"

#include "language/said.h"

#include <fmt/ranges.h>

namespace iosphoto::tool {

std::string helpFooter(const std::vector<std::string> &paragraphs)
{
    return fmt::format("{}", fmt::join(paragraphs, "\n\n"));
}

std::string examples(const std::vector<std::string> &commandLines)
{
    return said("Examples:") + fmt::format("\n  {}", fmt::join(commandLines, "\n  "));
}

std::string listOfFields(const std::vector<std::string> &keys)
{
    return said("FIELDS: {0}", fmt::join(keys, ", "));
}

std::string exitCodesOfALibrary()
{
    return said("Exit: 0 good, 1 incomplete, 2 wrong usage, 3 to 6 unusable files; see the README");
}

} // namespace iosphoto::tool
