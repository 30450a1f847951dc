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

/// What a source says of the device it comes from.
struct SourceDevice
{
    Device device;
    std::string build; ///< of the system, such as "19H12"
    std::string file;  ///< that says so, such as "Info.plist"
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_DEVICE_H
