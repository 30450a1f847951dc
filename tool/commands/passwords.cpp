#include "commands/passwords.h"

#include "commands/option_values.h"
#include "files/password_file.h"
#include "files/standard_input.h"
#include "process/failure.h"
#include "terminal/hidden_input.h"
#include "text/translate.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <unistd.h>

namespace iosphoto::tool {

namespace {

constexpr int mostTries = 3;

/// The variable's value, which is gone from the environment then: /proc shows it to others.
std::optional<Secret> takeFromEnvironment(const char *name)
{
    char *const value = std::getenv(name);
    if (value == nullptr || *value == '\0')
        return std::nullopt;
    Secret password{std::string_view(value)};
    wipe(value, std::strlen(value));
    unsetenv(name);
    return password;
}

std::string question(const std::string &backup, int attempt, bool mayRepeat)
{
    if (attempt > 0)
        return translate("that is not its password; password of the encrypted backup '{0}', try "
                         "{1} of {2}: ",
                         backup, attempt + 1, mostTries);
    return mayRepeat
               ? translate("password of the encrypted backup '{0}' (Enter: the same): ", backup)
               : translate("password of the encrypted backup '{0}': ", backup);
}

} // namespace

void Passwords::addOption(CLI::App &command)
{
    command
        .add_option("--password-file", files_,
                    translate("file whose first line is the password of an encrypted backup, - for "
                              "standard input; given several times, each is tried (default: "
                              "that in IOSPHOTO_BACKUP_PASSWORD, else the terminal is asked; an "
                              "option with the password itself would show it to others)"))
        ->allow_extra_args(false)
        ->type_name(translate("FILE"))
        ->check(notEmpty());
    command
        .add_option_function<std::string>(
            "--password",
            [](const std::string &) {
                throw Failure(WrongUsage,
                              translate("--password: others can read what stands in a command "
                                        "line; write the password into a file and name that with "
                                        "--password-file, or set {0}",
                                        variable));
            })
        ->group(""); // not in the help
}

std::optional<Secret> Passwords::passwordOf(const std::string &backup, int attempt)
{
    guardSecrets();
    load();
    const std::size_t number = numberOf(backup);
    if (given_.empty())
        return attempt < mostTries ? ask(backup, attempt) : std::nullopt;
    const auto tries = static_cast<std::size_t>(attempt);
    if (tries >= given_.size())
        return std::nullopt;
    return given_[(number + tries) % given_.size()].clone();
}

void Passwords::load()
{
    if (isLoaded_)
        return;
    for (const std::string &file : files_) {
        if (isStandardInput(file) && isatty(STDIN_FILENO) == 1)
            throw Failure(WrongUsage,
                          translate("--password-file -: standard input is a terminal, which would "
                                    "show the password; leave the option out to be asked for it"));
        given_.push_back(readPasswordFile(file));
    }
    auto fromEnvironment = takeFromEnvironment(variable);
    if (given_.empty() && fromEnvironment)
        given_.push_back(std::move(*fromEnvironment));
    isLoaded_ = true;
}

std::size_t Passwords::numberOf(const std::string &backup)
{
    const auto found = std::find(backups_.begin(), backups_.end(), backup);
    const auto number = static_cast<std::size_t>(found - backups_.begin());
    if (found == backups_.end())
        backups_.push_back(backup);
    return number;
}

std::optional<Secret> Passwords::ask(const std::string &backup, int attempt)
{
    const bool mayRepeat = attempt == 0 && !typed_.isEmpty();
    auto password = askForSecret(question(backup, attempt, mayRepeat));
    if (!password)
        return std::nullopt;
    if (!mayRepeat || !password->isEmpty())
        typed_ = std::move(*password);
    return typed_.clone();
}

} // namespace iosphoto::tool
