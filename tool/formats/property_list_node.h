#ifndef IOSPHOTO_TOOL_PROPERTY_LIST_NODE_H
#define IOSPHOTO_TOOL_PROPERTY_LIST_NODE_H

#include "time/epochs.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace iosphoto::tool {

/// A value of a property list. Null is none, which all of these take.
using PropertyListNode = void *;
using PropertyListTree = std::unique_ptr<void, void (*)(PropertyListNode)>;

/// Null when it is no property list, or has more values than a real one.
PropertyListTree parsePropertyList(const std::string &content);

/// The item of a dictionary; null when it is none, or has no such item.
PropertyListNode itemOf(PropertyListNode dictionary, const char *key);
/// The same of an array.
PropertyListNode itemOf(PropertyListNode array, std::uint64_t index);

/// The value, where it has that type.
/// @{
std::optional<std::string> textOf(PropertyListNode node);
std::optional<std::string> dataOf(PropertyListNode node);
std::optional<bool> flagOf(PropertyListNode node);
std::optional<std::int64_t> integerOf(PropertyListNode node);
std::optional<UnixTime> timeOf(PropertyListNode node);
/// Where an archive has the object, counted in its list of all.
std::optional<std::uint64_t> referenceOf(PropertyListNode node);
/// @}

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PROPERTY_LIST_NODE_H
