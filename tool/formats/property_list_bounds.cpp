#include "formats/property_list_bounds.h"

#include "formats/big_endian.h"

#include <QByteArray>
#include <QXmlStreamReader>

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <vector>

namespace iosphoto::tool {

namespace {

constexpr int deepest = 64;
constexpr int mostValues = 2'000'000;

bool isXmlWithinBounds(const std::string &content)
{
    QXmlStreamReader reader(
        QByteArray::fromRawData(content.data(), static_cast<int>(content.size())));
    int depth = 0;
    int values = 0;
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::StartElement && (++depth > deepest || ++values > mostValues))
            return false;
        if (token == QXmlStreamReader::EndElement)
            --depth;
    }
    return !reader.hasError();
}

/// The values of a binary list and which of them contain which, as far as they lie in the file.
class BinaryList
{
public:
    explicit BinaryList(const std::string &content) : content_(content)
    {
        constexpr std::size_t trailerSize = 32;
        if (content.size() < trailerSize)
            return;
        const std::size_t trailer = content.size() - trailerSize;
        offsetSize_ = number(trailer + 6, 1);
        referenceSize_ = number(trailer + 7, 1);
        count_ = number(trailer + 8, 8);
        top_ = number(trailer + 16, 8);
        table_ = number(trailer + 24, 8);
    }

    /// Whether its numbers have sizes that numbers can have.
    bool hasSizes() const
    {
        constexpr std::uint64_t most = sizeof(std::uint64_t);
        return offsetSize_ >= 1 && offsetSize_ <= most && referenceSize_ >= 1 &&
               referenceSize_ <= most;
    }
    std::uint64_t top() const { return top_; }

    /// The values in a value, or the first of too many; none unless it is a container.
    std::vector<std::uint64_t> valuesIn(std::uint64_t value) const
    {
        if (value >= count_)
            return {};
        std::uint64_t at = number(table_ + value * offsetSize_, offsetSize_);
        const std::uint64_t marker = number(at++, 1);
        const std::uint64_t type = marker >> 4U;
        const bool isDictionary = type == 0xd;
        if (type != 0xa && type != 0xc && !isDictionary)
            return {};
        const std::uint64_t size = sizeAt(at, marker & 0xfU) * (isDictionary ? 2 : 1);
        std::vector<std::uint64_t> values;
        for (std::uint64_t i = 0; i < size && i <= mostValues && at < content_.size();
             ++i, at += referenceSize_)
            values.push_back(number(at, referenceSize_));
        return values;
    }

private:
    /// A number of the file. Beyond the end are zeros.
    std::uint64_t number(std::uint64_t at, std::uint64_t bytes) const
    {
        const std::string_view all(content_);
        std::string digits(all.substr(std::min<std::uint64_t>(at, all.size()), bytes));
        digits.resize(bytes, '\0');
        return bigEndian(digits);
    }

    /// The size of a container: in its marker, or in a number behind it.
    std::uint64_t sizeAt(std::uint64_t &at, std::uint64_t inMarker) const
    {
        if (inMarker != 0xf)
            return inMarker;
        const std::uint64_t bytes = std::uint64_t{1} << (number(at++, 1) & 3U);
        const std::uint64_t size = number(at, bytes);
        at += bytes;
        return size & 0x7fffffffU;
    }

    const std::string &content_;
    std::uint64_t offsetSize_ = 0;
    std::uint64_t referenceSize_ = 0;
    std::uint64_t count_ = 0;
    std::uint64_t top_ = 0;
    std::uint64_t table_ = 0;
};

bool isBinaryWithinBounds(const std::string &content)
{
    struct Visit
    {
        std::uint64_t value;
        int depth;
    };
    const BinaryList list(content);
    if (!list.hasSizes())
        return false;
    std::vector<Visit> visits = {{list.top(), 1}};
    for (int values = 0; !visits.empty(); ++values) {
        const Visit visit = visits.back();
        visits.pop_back();
        const std::vector<std::uint64_t> inside = list.valuesIn(visit.value);
        if (visit.depth > deepest || inside.size() + visits.size() > mostValues ||
            values > mostValues)
            return false;
        for (const std::uint64_t value : inside)
            visits.push_back({value, visit.depth + 1});
    }
    return true;
}

} // namespace

bool isWithinBounds(const std::string &propertyList)
{
    constexpr char binaryMagic[] = "bplist00";
    return propertyList.compare(0, sizeof binaryMagic - 1, binaryMagic) == 0
               ? isBinaryWithinBounds(propertyList)
               : isXmlWithinBounds(propertyList);
}

} // namespace iosphoto::tool
