#ifndef IOSPHOTO_TOOL_NOTICE_H
#define IOSPHOTO_TOOL_NOTICE_H

#include <string>

namespace iosphoto::tool {

/// Each says one thing on stderr, as one line whatever `text` holds.
/// @{
void remark(const std::string &text);     ///< what was assumed; may be left unsaid
void notice(const std::string &text);     ///< what is missing or may be wrong
void sayFailure(const std::string &text); ///< why a command ends
/// @}

/// Whether remarks and progress are left out from now on.
void beQuiet(bool isWished);
bool isQuiet();

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_NOTICE_H
