#ifndef IOSPHOTO_TESTS_PROPERTY_LIST_BYTES_H
#define IOSPHOTO_TESTS_PROPERTY_LIST_BYTES_H

#include <plist/plist.h>

#include <cstdint>
#include <string>

namespace iosphoto::test {

/// A property list as binary. Takes it over.
inline std::string binaryPropertyList(plist_t root)
{
    char *bytes = nullptr;
    std::uint32_t size = 0;
    plist_to_bin(root, &bytes, &size);
    std::string binary(bytes, size);
    plist_to_bin_free(bytes);
    plist_free(root);
    return binary;
}

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_PROPERTY_LIST_BYTES_H
