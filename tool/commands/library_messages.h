#ifndef IOSPHOTO_TOOL_LIBRARY_MESSAGES_H
#define IOSPHOTO_TOOL_LIBRARY_MESSAGES_H

#include "catalogue/library.h"
#include "process/exit_status.h"
#include "terminal/terminal.h"

namespace iosphoto::tool {

/// Says on stderr in one line what was assumed, in one what the catalogue leaves out, and in others
/// what does not agree and what is missing.
/// @param label  put before each line where there are several libraries, such as "A: "
void printHowItWasRead(const Terminal &terminal, const Library &library,
                       const std::string &label = {});

/// Good, or Incomplete when something is missing from what was read.
ExitStatus statusOf(const Library &library);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_LIBRARY_MESSAGES_H
