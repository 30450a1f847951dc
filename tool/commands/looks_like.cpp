#include "commands/looks_like.h"

#include "language/said.h"

#include <QRegularExpression>

namespace iosphoto::tool {

CLI::Validator looksLike(const char *pattern, const std::string &example)
{
    const QRegularExpression expression(QRegularExpression::anchoredPattern(pattern));
    return {[=](const std::string &text) {
                return expression.match(QString::fromStdString(text)).hasMatch()
                           ? std::string()
                           : said("'{0}' should look like {1}", text, example);
            },
            std::string()};
}

CLI::Validator notEmpty()
{
    return {[](const std::string &text) { return text.empty() ? said("names no file") : ""; },
            std::string()};
}

} // namespace iosphoto::tool
