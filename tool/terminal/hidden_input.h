#ifndef IOSPHOTO_TOOL_HIDDEN_INPUT_H
#define IOSPHOTO_TOOL_HIDDEN_INPUT_H

#include "process/secret.h"

#include <optional>
#include <string>

namespace iosphoto::tool {

/// Asks the person at the terminal, whatever the standard streams are, for a line that does not
/// appear while it is typed. Nothing when there is no terminal, when another command has it, or
/// when the person ends the input.
std::optional<Secret> askForSecret(const std::string &question);

/// Lets a terminal show again what is typed, where that was being hidden. For an interruption,
/// which must hold the lock and never give it back.
void stopHidingInput();

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_HIDDEN_INPUT_H
