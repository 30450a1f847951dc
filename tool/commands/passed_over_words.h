#ifndef IOSPHOTO_TOOL_PASSED_OVER_WORDS_H
#define IOSPHOTO_TOOL_PASSED_OVER_WORDS_H

#include "input/passed_over.h"

#include <string>
#include <vector>

namespace iosphoto::tool {

/// What a search passed over, and why, as one line; empty where that is nothing.
std::string inWords(const std::vector<PassedOverNames> &passedOver);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PASSED_OVER_WORDS_H
