#ifndef IOSPHOTO_TOOL_KEYED_ARCHIVE_H
#define IOSPHOTO_TOOL_KEYED_ARCHIVE_H

#include "formats/property_list_node.h"

#include <cstdint>
#include <optional>
#include <string>

namespace iosphoto::tool {

/// An object with those that it refers to, archived as a property list: they lie in one list, and a
/// reference is a place in it. What is not there, or has another type, is nothing.
class KeyedArchive
{
public:
    explicit KeyedArchive(const std::string &content);

    /// Whether it is an archive.
    bool isArchive() const { return root_ != nullptr; }

    /// Of the archived object.
    /// @{
    std::optional<std::int64_t> integer(const char *key) const;
    std::optional<std::string> data(const char *key) const;
    /// @}

private:
    /// What a reference leads to, once; all else is itself.
    PropertyListNode followed(PropertyListNode node) const;

    PropertyListTree tree_;
    PropertyListNode root_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_KEYED_ARCHIVE_H
