#ifndef IOSPHOTO_TOOL_PASSWORDS_H
#define IOSPHOTO_TOOL_PASSWORDS_H

#include "session/password_source.h"

#include <CLI/CLI.hpp>

#include <string>
#include <vector>

namespace iosphoto::tool {

/// The passwords that the user gives: in files, else in a variable of the environment, else at the
/// terminal. None is looked for before one is needed.
class Passwords : public PasswordSource
{
public:
    static constexpr const char *variable = "IOSPHOTO_BACKUP_PASSWORD";

    /// Adds --password-file.
    void addOption(CLI::App &command);

    /// Of given passwords each is tried, for the second backup the second one first. A person has
    /// three tries. Throws Failure when a file cannot be read or holds none.
    std::optional<Secret> passwordOf(const std::string &backup, int attempt) override;

private:
    /// Reads what is given, once.
    void load();
    /// How many backups came before this one.
    std::size_t numberOf(const std::string &backup);
    std::optional<Secret> ask(const std::string &backup, int attempt);

    std::vector<std::string> files_;
    bool isLoaded_ = false;
    std::vector<Secret> given_;
    std::vector<std::string> backups_;
    Secret typed_; ///< the last one
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PASSWORDS_H
