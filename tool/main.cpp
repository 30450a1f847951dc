#include "commands/command.h"
#include "commands/general_options.h"
#include "commands/wrong_usage.h"
#include "failure.h"
#include "language/said.h"
#include "output/notice.h"
#include "source/sqlite_error_log.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <csignal>
#include <iostream>
#include <iterator>

namespace {

using namespace iosphoto::tool;

/// Parses and runs a command.
int run(int argumentCount, char **arguments)
{
    obeyLookOptions(argumentCount, arguments);
    CLI::App app(said("Reads the photo libraries of iOS devices. The files are only read."),
                 "iosphoto");
    app.require_subcommand(1);

    const Command commands[] = {addAlbums(app), addPhotos(app), addThumb(app)};
    addGeneralOptions(app, "iosphoto " IOSPHOTO_VERSION);
    try {
        app.parse(argumentCount, arguments);
    } catch (const CLI::ParseError &error) {
        if (error.get_exit_code() == 0) // --help, --version
            return app.exit(error);
        throw wrongUsage(app, error);
    }
    const auto *const wanted =
        std::find_if(std::begin(commands), std::end(commands),
                     [](const Command &command) { return command.options->parsed(); });
    return wanted->run(std::cout);
}

} // namespace

int main(int argumentCount, char **arguments)
{
    sqlite_error_log::install();
    std::signal(SIGXFSZ, SIG_IGN); // a file that grows too large is an error like others
    try {
        const int status = run(argumentCount, arguments);
        std::cout.flush();
        if (!std::cout)
            throw Failure(CannotAccess, said("cannot write the output; is the disk full?"));
        return status;
    } catch (const Failure &failure) {
        sayFailure(failure.what());
        return failure.status();
    } catch (const std::exception &error) { // lack of memory, a temporary folder that vanished
        sayFailure(error.what());
        return CannotAccess;
    }
}
