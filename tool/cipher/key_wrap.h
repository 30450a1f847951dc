#ifndef IOSPHOTO_TOOL_KEY_WRAP_H
#define IOSPHOTO_TOOL_KEY_WRAP_H

#include "process/secret.h"

#include <optional>
#include <string_view>

namespace iosphoto::tool {

/// A key of 32 bytes that is wrapped in another one after RFC 3394.
constexpr std::size_t wrappedKeySize = 40;

/// The key. Nothing when the other one is not that which it is wrapped in, or when it is damaged:
/// the format cannot tell these apart.
std::optional<Secret> unwrapped(std::string_view wrapped, const Secret &wrappingKey);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_KEY_WRAP_H
