#ifndef IOSPHOTO_TOOL_SESSION_H
#define IOSPHOTO_TOOL_SESSION_H

#include "files/file_use.h"
#include "session/password_source.h"
#include "terminal/terminal.h"

namespace iosphoto::tool {

/// What one run of the command shares; main makes it. Only what a signal or every single text needs
/// is process-wide besides: temporary paths and hidden input with their lock, and the language.
struct Session
{
    Terminal terminal;
    FileUse files;
    PasswordSource *passwords = nullptr; ///< null where none can be had
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_SESSION_H
