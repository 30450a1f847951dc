#include "commands/option_values.h"

#include "model/clock.h"
#include "process/failure.h"
#include "text/translate.h"
#include "time/time_text.h"

#include <QRegularExpression>

namespace iosphoto::tool {

void refuseAsTooLarge(const std::string &digits, const std::string &option)
{
    throw Failure(WrongUsage, translate("{0} = {1}: the number is too large; see iosphoto --help",
                                        option, digits));
}

CLI::Validator looksLike(const char *pattern, const std::string &example)
{
    const QRegularExpression expression(QRegularExpression::anchoredPattern(pattern));
    return {[=](const std::string &text) {
                return expression.match(QString::fromStdString(text)).hasMatch()
                           ? std::string()
                           : translate("'{0}' should look like {1}", text, example);
            },
            std::string()};
}

TimeSpan timeOf(const std::string &text, const std::string &option)
{
    if (const auto span = parseTime(text, {currentUnixTime()}))
        return *span;
    throw Failure(WrongUsage,
                  translate("{0}: '{1}' is no time; write it like 2024, 2024-05, 2024-05-01, "
                            "'2024-05-01 12:30', 2024-05-01T12:30:00Z, yesterday, 7d or now",
                            option, text));
}

std::string kindsOfTimes()
{
    return translate(
        "TIMES: a year, month or day (2024, 2024-05, 2024-05-01), a minute or second ('2024-05-01 "
        "12:30', 2024-05-01T12:30:00), now, today, yesterday, or the day so many days, weeks, "
        "months or years before today (7d, 2w, 3m, 1y). Times are local, here of the zone {0}, "
        "unless Z or an offset such as +02:00 stands behind them.",
        timeZoneName());
}

CLI::Validator notEmpty()
{
    return {[](const std::string &text) { return text.empty() ? translate("names no file") : ""; },
            std::string()};
}

CLI::Option &takeCommaList(CLI::Option &option)
{
    const auto trimmed = [](const std::string &value) { return CLI::detail::trim_copy(value); };
    return *option.delimiter(',')->allow_extra_args(false)->transform(trimmed, "");
}

} // namespace iosphoto::tool
