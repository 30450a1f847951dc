#include "formats/property_list.h"

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

} // namespace

PropertyList::PropertyList(const fs::path &file) : PropertyList(contentOf(file))
{
    std::error_code ignored;
    isThere_ = fs::exists(file, ignored);
}

PropertyList::PropertyList(const std::string &content)
    : isThere_(true), tree_(parsePropertyList(content))
{
}

PropertyListNode PropertyList::find(Keys keys) const
{
    PropertyListNode node = tree_.get();
    for (const char *const key : keys)
        node = itemOf(node, key);
    return node;
}

std::string PropertyList::text(Keys keys) const
{
    return textOf(find(keys)).value_or("");
}

bool PropertyList::isTrue(Keys keys) const
{
    PropertyListNode node = find(keys);
    return flagOf(node).value_or(false) || integerOf(node).value_or(0) != 0;
}

std::optional<std::int64_t> PropertyList::integer(Keys keys) const
{
    return integerOf(find(keys));
}

std::optional<UnixTime> PropertyList::time(Keys keys) const
{
    return timeOf(find(keys));
}

std::optional<std::string> PropertyList::data(Keys keys) const
{
    return dataOf(find(keys));
}

} // namespace iosphoto::tool
