#ifndef IOSPHOTO_TOOL_KEY_BAG_PARTS_H
#define IOSPHOTO_TOOL_KEY_BAG_PARTS_H

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace iosphoto::tool {

/// Parts of a key bag that belong together: those of the bag, or those of one class.
class KeyBagParts
{
public:
    explicit KeyBagParts(const std::string &shownName) : shownName_(shownName) {}

    bool has(const std::string &tag) const { return values_.count(tag) != 0; }
    /// Throws SourceError when there is one of this name.
    void add(const std::string &tag, std::string_view value);

    /// The value. Throws SourceError when it is not there, or empty.
    const std::string &bytes(const std::string &tag) const;
    /// The same of a number.
    std::uint32_t number(const std::string &tag) const;

private:
    std::string shownName_;
    std::map<std::string, std::string> values_;
};

/// The parts of the bag, then those of each class. Throws SourceError when one is cut short, or
/// stands there twice.
std::vector<KeyBagParts> partsOf(std::string_view keyBag, const std::string &shownName);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_KEY_BAG_PARTS_H
