#include "commands/command.h"
#include "commands/command_line.h"
#include "commands/general_options.h"
#include "commands/help.h"
#include "commands/passwords.h"
#include "commands/problem_words.h"
#include "commands/wrong_usage.h"
#include "evidence/evidence.h"
#include "interruption_watch.h"
#include "process/failure.h"
#include "session/session.h"
#include "standard_output.h"
#include "text/translate.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <csignal>
#include <iostream>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

namespace {

using namespace iosphoto::tool;

void parse(CLI::App &app, const std::vector<std::string> &commandLine)
{
    const auto firstWord = commandLine.begin() + (commandLine.empty() ? 0 : 1);
    const std::vector<std::string> words = completed(app, {firstWord, commandLine.end()});
    try {
        app.parse(std::vector<std::string>(words.rbegin(), words.rend())); // as it wants them
    } catch (const CLI::ParseError &error) {
        if (error.get_exit_code() == 0) // --help, --version
            throw;
        throw wrongUsage(app, words, error);
    }
}

/// Parses and runs a command.
int run(Session &session, int argumentCount, char **arguments)
{
    obeyLookOptions(session.terminal, argumentCount, arguments);
    CLI::App app(translate("Reads the photo libraries of iOS devices. The files are only read."),
                 "iosphoto");
    app.require_subcommand(1);

    const Command commands[] = {addInfo(app),    addAlbums(app),     addPhotos(app), addDiff(app),
                                addBackups(app), addStatements(app), addThumb(app)};
    std::optional<std::string> evidence;
    Passwords passwords;
    session.passwords = &passwords;
    for (const Command &command : commands) {
        addEvidenceOption(*command.options, evidence);
        if (command.opensBackups)
            passwords.addOption(*command.options);
    }
    app.footer(helpFooter({shortForms()}));
    addGeneralOptions(app, session.terminal, "iosphoto " IOSPHOTO_VERSION);
    const std::vector<std::string> commandLine(arguments, arguments + argumentCount);
    try {
        parse(app, commandLine);
    } catch (const CLI::ParseError &asked) { // for --help or --version
        return app.exit(asked);
    }
    const auto *const wanted =
        std::find_if(std::begin(commands), std::end(commands),
                     [](const Command &command) { return command.options->parsed(); });
    return withEvidence(session, evidence, commandLine, [&] {
        return runWithWords([&] { return wanted->run(session, std::cout); });
    });
}

} // namespace

int main(int argumentCount, char **arguments)
{
    occupyStandardDescriptors();
    for (const int signal : {SIGXFSZ, SIGPIPE}) // a write that fails is an error like others
        std::signal(signal, SIG_IGN);
    Session session;
    try {
        const InterruptionWatch watch(session.terminal);
        const StandardOutput output(session.files);
        const int status = run(session, argumentCount, arguments);
        std::cout.flush();
        return status;
    } catch (const OutputClosed &closed) {
        return closed.status();
    } catch (const Failure &failure) {
        session.terminal.printError(failure.what());
        return failure.status();
    } catch (const std::exception &error) { // lack of memory, a temporary folder that vanished
        session.terminal.printError(error.what());
        return CannotAccess;
    }
}
