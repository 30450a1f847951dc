#ifndef IOSPHOTO_TOOL_DID_YOU_MEAN_H
#define IOSPHOTO_TOOL_DID_YOU_MEAN_H

#include <string>
#include <vector>

namespace iosphoto::tool {

/// The end of a failure about a name that nothing has: "; did you mean 'selfie'?" where it differs
/// from a known one by slips of the keyboard, else nothing.
std::string didYouMean(const std::string &name, const std::vector<std::string> &known);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_DID_YOU_MEAN_H
