#include "commands/comma_list.h"

namespace iosphoto::tool {

CLI::Option &takeCommaList(CLI::Option &option)
{
    const auto trimmed = [](const std::string &value) { return CLI::detail::trim_copy(value); };
    return *option.delimiter(',')->allow_extra_args(false)->transform(trimmed, "");
}

} // namespace iosphoto::tool
