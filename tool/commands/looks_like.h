#ifndef IOSPHOTO_TOOL_LOOKS_LIKE_H
#define IOSPHOTO_TOOL_LOOKS_LIKE_H

#include <CLI/CLI.hpp>

#include <string>

namespace iosphoto::tool {

/// Accepts what looks like `example` to a person, which `pattern` tells to us.
CLI::Validator looksLike(const char *pattern, const std::string &example);

/// Accepts every text but the empty one.
CLI::Validator notEmpty();

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_LOOKS_LIKE_H
