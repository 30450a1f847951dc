#include "formats/keyed_archive.h"

namespace iosphoto::tool {

KeyedArchive::KeyedArchive(const std::string &content)
    : tree_(parsePropertyList(content)),
      root_(followed(itemOf(itemOf(tree_.get(), "$top"), "root")))
{
}

PropertyListNode KeyedArchive::followed(PropertyListNode node) const
{
    const auto place = referenceOf(node);
    return place ? itemOf(itemOf(tree_.get(), "$objects"), *place) : node;
}

std::optional<std::int64_t> KeyedArchive::integer(const char *key) const
{
    return integerOf(followed(itemOf(root_, key)));
}

std::optional<std::string> KeyedArchive::data(const char *key) const
{
    PropertyListNode node = followed(itemOf(root_, key));
    if (const auto bytes = dataOf(node))
        return bytes;
    return dataOf(followed(itemOf(node, "NS.data"))); // of a mutable object
}

} // namespace iosphoto::tool
