#include "model/model_devicephoto_dbmgr.h"

#include <QChar>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <limits>

namespace {

constexpr int componentsCompared = 4;

int clampedToInt(std::int64_t value)
{
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(std::clamp<std::int64_t>(value, Limits::min(), Limits::max()));
}

/// The text from `position` to the next dot; `position` moves behind that dot.
std::string takeComponent(const std::string &version, std::size_t &position)
{
    if (position >= version.size())
        return {};
    const std::size_t end = std::min(version.find('.', position), version.size());
    std::string component = version.substr(position, end - position);
    position = end + 1;
    return component;
}

/// What atoi gives, without its undefined behaviour for numbers that do not fit.
int leadingNumber(const std::string &component)
{
    return clampedToInt(std::strtol(component.c_str(), nullptr, 10));
}

bool isDecimalDigit(QChar character)
{
    if (character.unicode() < 0x80)
        return character >= QLatin1Char('0') && character <= QLatin1Char('9');
    return character.category() == QChar::Number_DecimalDigit;
}

struct ModelNumber
{
    int major = 0;
    int minor = 0;
};

/// The two numbers of "iPhone14,2". Characters other than digits and the comma do not count.
ModelNumber modelNumber(const QString &productType)
{
    QString major;
    QString minor;
    bool commaSeen = false;
    for (const QChar character : productType) {
        if (isDecimalDigit(character))
            (commaSeen ? minor : major).append(character);
        else if (character == QLatin1Char(','))
            commaSeen = true;
    }
    return {major.toInt(), minor.toInt()};
}

} // namespace

int cmpiOSVersion(const std::string &a, const std::string &b)
{
    std::size_t positionA = 0;
    std::size_t positionB = 0;
    for (int pass = 0; pass < componentsCompared; ++pass) {
        const std::string componentA = takeComponent(a, positionA);
        const std::string componentB = takeComponent(b, positionB);
        const std::int64_t difference =
            std::int64_t(leadingNumber(componentA)) - leadingNumber(componentB);
        if (difference != 0)
            return clampedToInt(difference);
        if (componentA.empty() && componentB.empty())
            return 0;
    }
    return 0;
}

int cmpProductVersion(const QString &a, const QString &b)
{
    const ModelNumber modelA = modelNumber(a);
    const ModelNumber modelB = modelNumber(b);
    return modelA.major != modelB.major ? modelA.major - modelB.major : modelA.minor - modelB.minor;
}
