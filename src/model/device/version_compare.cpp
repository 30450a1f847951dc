#include "model/device/version_compare.h"

#include <QChar>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <limits>

// Nothing here allocates: hosts ask these questions outside the operations that return codes.

namespace iosphoto {

namespace {

constexpr int componentsCompared = 4;

int clampedToInt(std::int64_t value)
{
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(std::clamp<std::int64_t>(value, Limits::min(), Limits::max()));
}

/// Walks through the components of a version, from dot to dot.
class Components
{
public:
    explicit Components(const std::string &version) : version_(version) {}

    bool atEmptyOne() const { return position_ >= version_.size() || version_[position_] == '.'; }

    /// What atoi gives for the component, without its undefined behaviour for numbers that are
    /// too large.
    int number() const
    {
        if (atEmptyOne())
            return 0;
        return clampedToInt(std::strtol(version_.c_str() + position_, nullptr, 10));
    }

    void next()
    {
        if (position_ < version_.size())
            position_ = std::min(version_.find('.', position_), version_.size()) + 1;
    }

private:
    const std::string &version_;
    std::size_t position_ = 0;
};

/// A number as it is read digit by digit; 0 when it is too large for an int or holds digits other
/// than those of ASCII.
class DigitReader
{
public:
    void add(QChar digit)
    {
        constexpr int base = 10;
        const int value = digit.unicode() - u'0';
        isReadable_ = isReadable_ && value >= 0 && value < base;
        if (isReadable_)
            number_ = number_ * base + value;
        isReadable_ = isReadable_ && number_ <= std::numeric_limits<int>::max();
    }

    int number() const { return isReadable_ ? static_cast<int>(number_) : 0; }

private:
    std::int64_t number_ = 0;
    bool isReadable_ = true;
};

bool isDecimalDigit(QChar character)
{
    constexpr char16_t firstBeyondAscii = 0x80;
    if (character.unicode() < firstBeyondAscii)
        return character >= QLatin1Char('0') && character <= QLatin1Char('9');
    return character.category() == QChar::Number_DecimalDigit;
}

struct ModelNumber
{
    int major = 0;
    int minor = 0;
};

/// The two numbers of "iPhone14,2". Characters other than digits and the comma do not count.
ModelNumber modelNumber(QStringView productType)
{
    DigitReader major;
    DigitReader minor;
    bool commaSeen = false;
    for (const QChar character : productType) {
        if (isDecimalDigit(character))
            (commaSeen ? minor : major).add(character);
        else if (character == QLatin1Char(','))
            commaSeen = true;
    }
    return {major.number(), minor.number()};
}

} // namespace

int compareVersions(const std::string &a, const std::string &b) noexcept
{
    Components componentsA(a);
    Components componentsB(b);
    for (int pass = 0; pass < componentsCompared; ++pass) {
        const std::int64_t difference = std::int64_t(componentsA.number()) - componentsB.number();
        if (difference != 0)
            return clampedToInt(difference);
        if (componentsA.atEmptyOne() && componentsB.atEmptyOne())
            return 0;
        componentsA.next();
        componentsB.next();
    }
    return 0;
}

int compareModels(QStringView a, QStringView b) noexcept
{
    const ModelNumber modelA = modelNumber(a);
    const ModelNumber modelB = modelNumber(b);
    return modelA.major != modelB.major ? modelA.major - modelB.major : modelA.minor - modelB.minor;
}

} // namespace iosphoto
