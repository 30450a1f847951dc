#ifndef IOSPHOTO_TOOL_NOTICE_H
#define IOSPHOTO_TOOL_NOTICE_H

#include <string>

namespace iosphoto::tool {

/// Says one thing on stderr, as one line whatever `text` holds.
void notice(const std::string &text);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_NOTICE_H
