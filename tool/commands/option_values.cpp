#include "commands/option_values.h"

#include "process/failure.h"
#include "text/translate.h"

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
    if (const auto span = parseTime(text))
        return *span;
    throw Failure(WrongUsage, translate("{0}: '{1}' is no time; write it like 2024-05-01, "
                                        "'2024-05-01 12:30', 2024-05-01T12:30:00Z or now",
                                        option, text));
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
