#ifndef IOSPHOTO_TOOL_FIELD_CHOICE_H
#define IOSPHOTO_TOOL_FIELD_CHOICE_H

#include <cstddef>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// Where in `all` the `chosen` keys are, each once; or the `usual` ones when none is chosen. Throws
/// Failure when a key is unknown, naming those that are known.
std::vector<std::size_t> chooseKeys(const std::vector<std::string> &all,
                                    const std::vector<std::string> &chosen,
                                    const std::vector<std::string> &usual);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_FIELD_CHOICE_H
