#ifndef IOSPHOTO_TOOL_FIELD_CHOICE_H
#define IOSPHOTO_TOOL_FIELD_CHOICE_H

#include <cstddef>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// Where in `all` the `chosen` keys are, each once. Throws Failure when one is unknown, naming
/// those that are known.
std::vector<std::size_t> placesOfKeys(const std::vector<std::string> &all,
                                      const std::vector<std::string> &chosen);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_FIELD_CHOICE_H
