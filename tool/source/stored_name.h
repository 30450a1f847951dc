#ifndef IOSPHOTO_TOOL_STORED_NAME_H
#define IOSPHOTO_TOOL_STORED_NAME_H

#include <string>

namespace iosphoto::tool {

/// The files of a backup that are below Media on the phone.
constexpr const char *mediaDomain = "CameraRollDomain";

/// The path of such a file in its domain.
std::string pathInDomain(const std::string &mediaPath);

/// The name that a backup gives to such a file: 40 hexadecimal digits.
std::string storedName(const std::string &mediaPath);

/// Where in the backup a file of that name is, from iOS 10 on; before, it was at the top.
std::string inItsFolder(const std::string &storedName);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_STORED_NAME_H
