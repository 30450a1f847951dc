#include "formats/property_list.h"

#include "formats/property_list_bounds.h"

#include <plist/plist.h>

#include <cstdlib>
#include <fstream>
#include <iterator>

namespace iosphoto::tool {

namespace fs = std::filesystem;

namespace {

std::string contentOf(const fs::path &file)
{
    std::error_code error;
    const std::uintmax_t size = fs::file_size(file, error);
    if (error || size > PropertyList::largest)
        return {};
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

plist_t parse(const std::string &content)
{
    plist_t root = nullptr;
    if (!isWithinBounds(content))
        return root;
    // Not plist_from_memory(), whose arguments differ from version to version.
    const auto size = static_cast<std::uint32_t>(content.size());
    if (plist_is_binary(content.data(), size) != 0)
        plist_from_bin(content.data(), size, &root);
    else
        plist_from_xml(content.data(), size, &root);
    return root;
}

} // namespace

PropertyList::PropertyList(const fs::path &file) : PropertyList(contentOf(file))
{
    std::error_code ignored;
    isThere_ = fs::exists(file, ignored);
}

PropertyList::PropertyList(const std::string &content)
    : isThere_(true), root_(parse(content), plist_free)
{
}

void *PropertyList::find(Keys keys) const
{
    plist_t node = root_.get();
    for (const char *const key : keys)
        node = plist_get_node_type(node) == PLIST_DICT ? plist_dict_get_item(node, key) : nullptr;
    return node;
}

std::string PropertyList::text(Keys keys) const
{
    plist_t node = find(keys);
    if (plist_get_node_type(node) != PLIST_STRING)
        return {};
    char *value = nullptr;
    plist_get_string_val(node, &value);
    const std::unique_ptr<char, void (*)(void *)> owned(value, std::free);
    return value != nullptr ? value : "";
}

bool PropertyList::isTrue(Keys keys) const
{
    plist_t node = find(keys);
    std::uint8_t value = 0;
    if (plist_get_node_type(node) == PLIST_BOOLEAN)
        plist_get_bool_val(node, &value);
    return value != 0 || integer(keys).value_or(0) != 0;
}

std::optional<std::int64_t> PropertyList::integer(Keys keys) const
{
    plist_t item = find(keys);
    if (item == nullptr || plist_get_node_type(item) != PLIST_UINT)
        return std::nullopt;
    std::uint64_t value = 0;
    plist_get_uint_val(item, &value);
    return static_cast<std::int64_t>(value);
}

std::optional<UnixTime> PropertyList::time(Keys keys) const
{
    plist_t node = find(keys);
    if (plist_get_node_type(node) != PLIST_DATE)
        return std::nullopt;
    std::int32_t seconds = 0;
    std::int32_t ignored = 0;
    plist_get_date_val(node, &seconds, &ignored);
    return unixTimeOf(CoreDataTime{double(seconds)});
}

} // namespace iosphoto::tool
