#include "source/property_list.h"

#include "model/core_data_time.h"

#include <plist/plist.h>

#include <cstdlib>

namespace iosphoto::tool {

PropertyList::PropertyList(const std::string &bytes)
{
    plist_t list = nullptr;
    plist_from_memory(bytes.data(), static_cast<std::uint32_t>(bytes.size()), &list);
    root_.reset(list);
}

void PropertyList::Free::operator()(void *list) const
{
    plist_free(list);
}

std::string PropertyList::text(const std::string &key) const
{
    plist_t item = find(key);
    if (item == nullptr || plist_get_node_type(item) != PLIST_STRING)
        return {};
    char *value = nullptr;
    plist_get_string_val(item, &value);
    const std::string text = value != nullptr ? value : "";
    std::free(value);
    return text;
}

std::optional<std::int64_t> PropertyList::integer(const std::string &key) const
{
    plist_t item = find(key);
    if (item == nullptr || plist_get_node_type(item) != PLIST_UINT)
        return std::nullopt;
    std::uint64_t value = 0;
    plist_get_uint_val(item, &value);
    return static_cast<std::int64_t>(value);
}

std::optional<bool> PropertyList::boolean(const std::string &key) const
{
    plist_t item = find(key);
    if (item == nullptr || plist_get_node_type(item) != PLIST_BOOLEAN)
        return std::nullopt;
    std::uint8_t value = 0;
    plist_get_bool_val(item, &value);
    return value != 0;
}

std::optional<std::int64_t> PropertyList::unixTime(const std::string &key) const
{
    plist_t item = find(key);
    if (item == nullptr || plist_get_node_type(item) != PLIST_DATE)
        return std::nullopt;
    std::int32_t seconds = 0;
    std::int32_t microseconds = 0;
    plist_get_date_val(item, &seconds, &microseconds);
    return seconds + coreDataEpoch;
}

void *PropertyList::find(const std::string &key) const
{
    plist_t item = root_.get();
    for (std::size_t begin = 0; item != nullptr && begin <= key.size();) {
        if (plist_get_node_type(item) != PLIST_DICT)
            return nullptr;
        const std::size_t end = std::min(key.find('/', begin), key.size());
        item = plist_dict_get_item(item, key.substr(begin, end - begin).c_str());
        begin = end + 1;
    }
    return item;
}

} // namespace iosphoto::tool
