#ifndef IOSPHOTO_TOOL_PROPERTY_LIST_H
#define IOSPHOTO_TOOL_PROPERTY_LIST_H

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace iosphoto::tool {

/// A property list, binary or XML. One that cannot be read has no entries. Keys that lead into a
/// dictionary inside are written with a slash, such as "Lockdown/ProductType".
class PropertyList
{
public:
    explicit PropertyList(const std::string &bytes);

    bool isReadable() const { return root_ != nullptr; }
    std::string text(const std::string &key) const; ///< empty where there is none
    std::optional<std::int64_t> integer(const std::string &key) const;
    std::optional<bool> boolean(const std::string &key) const;
    std::optional<std::int64_t> unixTime(const std::string &key) const;

private:
    struct Free
    {
        void operator()(void *list) const;
    };

    void *find(const std::string &key) const;

    std::unique_ptr<void, Free> root_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PROPERTY_LIST_H
