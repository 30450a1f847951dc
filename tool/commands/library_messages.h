#ifndef IOSPHOTO_TOOL_LIBRARY_MESSAGES_H
#define IOSPHOTO_TOOL_LIBRARY_MESSAGES_H

#include "catalogue/library.h"
#include "catalogue/photo_selection.h"
#include "process/exit_status.h"
#include "terminal/terminal.h"

namespace iosphoto::tool {

/// Says on stderr in one line what was assumed, in one what the catalogue leaves out, and in others
/// what does not agree and what is missing.
/// @param label  put before each line where there are several libraries, such as "A: "
/// @param shown  whether the command lists what is left out, so that nobody has to be told how
void printHowItWasRead(const Terminal &terminal, const Library &library,
                       const std::string &label = {}, Shown shown = Shown::Listed);

/// Good, or Incomplete when something is missing from what was read.
ExitStatus statusOf(const Library &library);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_LIBRARY_MESSAGES_H
