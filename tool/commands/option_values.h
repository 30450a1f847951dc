#ifndef IOSPHOTO_TOOL_OPTION_VALUES_H
#define IOSPHOTO_TOOL_OPTION_VALUES_H

#include "time/time_span.h"

#include <CLI/CLI.hpp>

#include <charconv>
#include <string>
#include <system_error>

namespace iosphoto::tool {

/// Throws the Failure of a number that is too large.
[[noreturn]] void refuseAsTooLarge(const std::string &digits, const std::string &option);

/// Accepts what looks like `example` to a person, which `pattern` tells to us.
CLI::Validator looksLike(const char *pattern, const std::string &example);

/// The time that the text of an option is. Throws Failure when it is none.
TimeSpan timeOf(const std::string &text, const std::string &option);

/// The paragraph of a help that says how such texts are written, and of which zone they are.
std::string kindsOfTimes();

/// Accepts every text but the empty one.
CLI::Validator notEmpty();

/// The number that the digits of an option's value make. Throws Failure where it is too large.
template <typename Number>
Number parseNumber(const std::string &digits, const std::string &option)
{
    Number number = 0;
    const char *const begin = digits.data();
    if (std::from_chars(begin, begin + digits.size(), number).ec != std::errc())
        refuseAsTooLarge(digits, option);
    return number;
}

/// Lets an option take several values, "a,b" or "a, b". The argument behind them is none of them.
CLI::Option &takeCommaList(CLI::Option &option);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_OPTION_VALUES_H
