#ifndef IOSPHOTO_TOOL_DEVICE_H
#define IOSPHOTO_TOOL_DEVICE_H

#include <string>

namespace iosphoto::tool {

/// The device that a library is read as. An empty text is one that nobody named.
struct Device
{
    std::string iosVersion;
    std::string productType;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_DEVICE_H
