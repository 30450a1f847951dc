#ifndef IOSPHOTO_TOOL_MESSAGES_H
#define IOSPHOTO_TOOL_MESSAGES_H

#include <string>

namespace iosphoto::tool {

/// Each says one thing on stderr, as one line whatever `text` holds.
/// @{
void printInfo(const std::string &text);    ///< what was assumed; may be left unsaid
void printWarning(const std::string &text); ///< what is missing or may be wrong
void printError(const std::string &text);   ///< why a command ends
/// @}

/// Whether remarks and progress are left out from now on.
void beQuiet(bool isWished);
bool isQuiet();

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_MESSAGES_H
