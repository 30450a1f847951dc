#ifndef IOSPHOTO_TOOL_PASSWORD_SOURCE_H
#define IOSPHOTO_TOOL_PASSWORD_SOURCE_H

#include "process/secret.h"

#include <optional>
#include <string>

namespace iosphoto::tool {

/// Where the passwords of encrypted backups come from.
class PasswordSource
{
public:
    PasswordSource() = default;
    virtual ~PasswordSource() = default;
    PasswordSource(const PasswordSource &) = delete;
    PasswordSource &operator=(const PasswordSource &) = delete;

    /// A password to try; nothing when there is none, or no other one. May ask a person, and throw
    /// Failure.
    /// @param backup   as messages name it
    /// @param attempt  from 0 on
    virtual std::optional<Secret> passwordOf(const std::string &backup, int attempt) = 0;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PASSWORD_SOURCE_H
