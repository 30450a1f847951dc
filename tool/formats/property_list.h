#ifndef IOSPHOTO_TOOL_PROPERTY_LIST_H
#define IOSPHOTO_TOOL_PROPERTY_LIST_H

#include "formats/property_list_node.h"
#include "time/epochs.h"

#include <cstdint>
#include <filesystem>
#include <initializer_list>
#include <optional>
#include <string>

namespace iosphoto::tool {

/// A property list, XML or binary. One that is missing or damaged has no values.
class PropertyList
{
public:
    using Keys = std::initializer_list<const char *>; ///< from the outermost dictionary inwards

    /// Bytes of a file; one with all icons of a phone has some ten million.
    static constexpr std::uint64_t largest = 256'000'000;

    explicit PropertyList(const std::filesystem::path &file);
    explicit PropertyList(const std::string &content);

    /// Whether there is something that cannot be read as a property list.
    bool isDamaged() const { return isThere_ && tree_ == nullptr; }

    /// Empty when there is no such text.
    std::string text(Keys keys) const;
    /// Whether there is a true value, or a number that stands for one.
    bool isTrue(Keys keys) const;
    std::optional<std::int64_t> integer(Keys keys) const;
    std::optional<UnixTime> time(Keys keys) const;
    /// Bytes.
    std::optional<std::string> data(Keys keys) const;

private:
    PropertyListNode find(Keys keys) const;

    bool isThere_;
    PropertyListTree tree_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PROPERTY_LIST_H
