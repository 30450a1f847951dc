#ifndef IOSPHOTO_TOOL_COMMA_LIST_H
#define IOSPHOTO_TOOL_COMMA_LIST_H

#include <CLI/CLI.hpp>

namespace iosphoto::tool {

/// Lets an option take several values, "a,b" or "a, b". The argument behind them is none of them.
CLI::Option &takeCommaList(CLI::Option &option);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_COMMA_LIST_H
