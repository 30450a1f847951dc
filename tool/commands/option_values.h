#ifndef IOSPHOTO_TOOL_OPTION_VALUES_H
#define IOSPHOTO_TOOL_OPTION_VALUES_H

#include "time/time_span.h"

#include <CLI/CLI.hpp>

#include <string>

namespace iosphoto::tool {

/// Accepts what looks like `example` to a person, which `pattern` tells to us.
CLI::Validator looksLike(const char *pattern, const std::string &example);

/// The time that the text of an option is. Throws Failure when it is none.
TimeSpan timeOf(const std::string &text, const std::string &option);

/// Accepts every text but the empty one.
CLI::Validator notEmpty();

/// Lets an option take several values, "a,b" or "a, b". The argument behind them is none of them.
CLI::Option &takeCommaList(CLI::Option &option);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_OPTION_VALUES_H
