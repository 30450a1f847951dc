#include "input/backup/key_bag_parts.h"

#include "formats/big_endian.h"
#include "input/source_problem.h"

namespace iosphoto::tool {

namespace {

constexpr std::size_t tagSize = 4;
constexpr std::size_t headSize = tagSize + 4; // the length follows the tag
constexpr std::size_t largest = 65'536;       // bytes; real ones have some two thousand

} // namespace

void KeyBagParts::add(const std::string &tag, std::string_view value)
{
    if (!values_.emplace(tag, value).second)
        throw SourceError(SourceProblem::KeyBagRepeats, {shownName_, tag});
}

const std::string &KeyBagParts::bytes(const std::string &tag) const
{
    const auto found = values_.find(tag);
    if (found == values_.end() || found->second.empty())
        throw SourceError(SourceProblem::KeyBagLacks, {shownName_, tag});
    return found->second;
}

std::uint32_t KeyBagParts::number(const std::string &tag) const
{
    const std::string &digits = bytes(tag);
    if (digits.size() != sizeof(std::uint32_t))
        throw SourceError(SourceProblem::KeyBagHasOddPart,
                          {shownName_, tag, std::to_string(digits.size()),
                           std::to_string(sizeof(std::uint32_t))});
    return static_cast<std::uint32_t>(bigEndian(digits));
}

std::vector<KeyBagParts> partsOf(std::string_view keyBag, const std::string &shownName)
{
    if (keyBag.size() > largest)
        throw SourceError(SourceProblem::TooLarge, {shownName, std::to_string(largest)});
    std::vector<KeyBagParts> parts = {KeyBagParts(shownName)};
    while (!keyBag.empty()) {
        const std::string tag(keyBag.substr(0, tagSize));
        if (keyBag.size() < headSize)
            throw SourceError(SourceProblem::KeyBagIsCutShort, {shownName, tag});
        const std::uint64_t size = bigEndian(keyBag.substr(tagSize, headSize - tagSize));
        keyBag.remove_prefix(headSize);
        if (size > keyBag.size())
            throw SourceError(SourceProblem::KeyBagIsCutShort, {shownName, tag});
        const bool beginsClass = tag == "UUID" && parts.back().has(tag);
        if (beginsClass)
            parts.emplace_back(shownName);
        parts.back().add(tag, keyBag.substr(0, size));
        keyBag.remove_prefix(size);
    }
    return parts;
}

} // namespace iosphoto::tool
