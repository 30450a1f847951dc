#include "formats/property_list_node.h"

#include "formats/property_list_bounds.h"

#include <plist/plist.h>

#include <cstdlib>

namespace iosphoto::tool {

namespace {

bool isA(PropertyListNode node, plist_type type)
{
    return node != nullptr && plist_get_node_type(node) == type;
}

} // namespace

PropertyListTree parsePropertyList(const std::string &content)
{
    plist_t root = nullptr;
    if (isWithinBounds(content)) {
        // Not plist_from_memory(), whose arguments differ from version to version.
        const auto size = static_cast<std::uint32_t>(content.size());
        if (plist_is_binary(content.data(), size) != 0)
            plist_from_bin(content.data(), size, &root);
        else
            plist_from_xml(content.data(), size, &root);
    }
    return {root, plist_free};
}

PropertyListNode itemOf(PropertyListNode dictionary, const char *key)
{
    return isA(dictionary, PLIST_DICT) ? plist_dict_get_item(dictionary, key) : nullptr;
}

PropertyListNode itemOf(PropertyListNode array, std::uint64_t index)
{
    if (!isA(array, PLIST_ARRAY) || index >= plist_array_get_size(array))
        return nullptr;
    return plist_array_get_item(array, static_cast<std::uint32_t>(index));
}

std::optional<std::string> textOf(PropertyListNode node)
{
    if (!isA(node, PLIST_STRING))
        return std::nullopt;
    char *value = nullptr;
    plist_get_string_val(node, &value);
    const std::unique_ptr<char, void (*)(void *)> owned(value, std::free);
    return value != nullptr ? value : "";
}

std::optional<std::string> dataOf(PropertyListNode node)
{
    if (!isA(node, PLIST_DATA))
        return std::nullopt;
    char *value = nullptr;
    std::uint64_t size = 0;
    plist_get_data_val(node, &value, &size);
    const std::unique_ptr<char, void (*)(void *)> owned(value, std::free);
    return value != nullptr ? std::string(value, size) : "";
}

std::optional<bool> flagOf(PropertyListNode node)
{
    if (!isA(node, PLIST_BOOLEAN))
        return std::nullopt;
    std::uint8_t value = 0;
    plist_get_bool_val(node, &value);
    return value != 0;
}

std::optional<std::int64_t> integerOf(PropertyListNode node)
{
    if (!isA(node, PLIST_UINT))
        return std::nullopt;
    std::uint64_t value = 0;
    plist_get_uint_val(node, &value);
    return static_cast<std::int64_t>(value);
}

std::optional<UnixTime> timeOf(PropertyListNode node)
{
    if (!isA(node, PLIST_DATE))
        return std::nullopt;
    std::int32_t seconds = 0;
    std::int32_t ignored = 0;
    plist_get_date_val(node, &seconds, &ignored);
    return unixTimeOf(CoreDataTime{double(seconds)});
}

std::optional<std::uint64_t> referenceOf(PropertyListNode node)
{
    if (!isA(node, PLIST_UID))
        return std::nullopt;
    std::uint64_t index = 0;
    plist_get_uid_val(node, &index);
    return index;
}

} // namespace iosphoto::tool
