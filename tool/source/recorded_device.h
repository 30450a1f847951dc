#ifndef IOSPHOTO_TOOL_RECORDED_DEVICE_H
#define IOSPHOTO_TOOL_RECORDED_DEVICE_H

#include <string>

namespace iosphoto::tool {

/// The device that a source comes from, in the source's own words. What it does not say is empty.
struct RecordedDevice
{
    std::string iosVersion;   ///< such as "17.4.1"
    std::string productType;  ///< such as "iPhone14,2"
    std::string buildVersion; ///< such as "21E236"
    std::string recordedIn;   ///< the file that says so, such as "Info.plist"
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_RECORDED_DEVICE_H
